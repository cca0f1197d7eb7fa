#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Lists of apps and websites: their page, their editor, and their limits.
namespace orvel::Copy::Lists {

// The page: ready-made Lists and the user's own.
std::string_view readyMade();
std::string_view yours();
std::string_view nothingYet();
std::string_view dropToAddApp();
std::string_view readyMadeNoneInstalled();

// One List.
std::string_view edit();
std::string_view apps();
std::string_view websites();
std::string_view notInstalled();
std::string_view gamesCategory();
std::string_view gamesCategoryNote();
std::string_view noApps();
std::string_view noWebsites();
std::string_view notUsed();
std::string_view picksUpGames();
std::string_view blockedOnInstall();
std::string_view searchHint();

// The editor.
std::string_view newListTitle();
std::string_view yoursNote();
std::string_view name();
std::string_view namePlaceholder();
std::string_view colour();
std::string_view symbol();
std::string_view remove();

// Adding apps.
/// Goes on with `chooseApp`, which is a button.
std::string_view dragApps();
std::string_view chooseApp();
std::string_view chooseAppTitle();
std::string_view filterApps();
std::string_view noAppsFound();

// Adding websites.
/// Stands in the empty field of a website.
std::string_view addWebsite();
std::string_view addWebsiteLabel();
std::string_view add();

// Buttons and what stands beside them.
std::string_view resetToDefault();
std::string_view cancel();
std::string_view save();
std::string_view createList();
std::string_view problemName();
std::string_view deleteUnused();
std::string_view delete_();
std::string_view deleteList();

/// "Drop to add Mail"
std::string dropToAdd(std::string_view name);
/// "Delete Social?"
std::string deleteTitle(std::string_view name);
/// "Edit Social"
std::string editTitle(std::string_view name);
/// "1 app on this Mac", "2 apps on this Mac"
std::string appsOnThisMac(std::int64_t count);
/// "Ready-made · includes the 2 apps on this Mac"
std::string readyMadeIncludes(std::int64_t count);
/// "Yours · 3 apps, 2 websites"
std::string yoursSummary(std::string_view text);
/// "All of Social"
std::string allOf(std::string_view name);
/// "Every app in Games"
std::string category(std::string_view category);
/// "Used by Deep work and Evening."
std::string usedBy(std::string_view blocks);
/// "No Lists match “soc”"
std::string noMatch(std::string_view query);
/// "Websites live inside Lists. To block reddit.com, add it to one: Social is a good fit."
std::string goodFit(std::string_view site, std::string_view list);
/// "Websites live inside Lists. To block reddit.com, add it to one."
std::string addToOne(std::string_view site);
/// "Add reddit.com to Social…"
std::string addSiteToList(std::string_view site, std::string_view list);
/// "Add reddit.com to a List…"
std::string addSiteToAList(std::string_view site);
/// "A ready-made List. Orvel found 2 of its apps on this Mac; …"; for exactly 0 "None of its apps are on this Mac yet;
/// …"
std::string readyMadeNote(std::int64_t found);
/// "3 of 40"
std::string counter(std::int64_t count, std::int64_t of);
/// "That doesn’t look like a website yet. …"; with a suggestion it says "Try reddit.com."
std::string invalidWebsite(std::optional<std::string_view> suggestion);
/// "A List holds 40 websites at most, so 3 didn’t fit."
std::string overCap(std::int64_t count);
/// "Blocked in Safari and Chrome. Firefox isn’t covered yet."; without the latter "Blocked in Safari and Chrome."
std::string coverage(std::string_view browsers, std::optional<std::string_view> uncovered);
/// "Deep work is Firm until 12:00, so this List can gain apps and websites, not lose them."
std::string guarded(std::string_view block, std::string_view until);
/// "Deep work and Evening use this List. …"
std::string deleteUsedBy(std::string_view blocks);

}
