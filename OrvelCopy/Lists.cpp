#include "OrvelCopy/Lists.h"

#include "OrvelCopy/Lookup/Lookup.h"

namespace orvel::Copy::Lists {

// TRANSLATORS: a heading above Lists that come with Orvel
std::string_view readyMade() { return constant(KEY("Ready-made")); }
// TRANSLATORS: a heading above Lists that the user made
std::string_view yours() { return constant(KEY("Yours")); }
// TRANSLATORS: a List with nothing on it
std::string_view nothingYet() { return constant(KEY("Nothing yet")); }
// TRANSLATORS: stands where an app is being dragged to
std::string_view dropToAddApp() { return constant(KEY("Drop to add this app")); }
std::string_view readyMadeNoneInstalled() { return constant(KEY("Ready-made · none of its apps are on this Mac yet")); }

// TRANSLATORS: the words on a button
std::string_view edit() { return constant(KEY("Edit…")); }
// TRANSLATORS: a heading above apps
std::string_view apps() { return constant(KEY("Apps")); }
// TRANSLATORS: a heading above websites
std::string_view websites() { return constant(KEY("Websites")); }
// TRANSLATORS: beside an app
std::string_view notInstalled() { return constant(KEY("Not installed. Blocked if you install it.")); }
// TRANSLATORS: in the place of an app: a category
std::string_view gamesCategory() { return constant(KEY("Every game on this Mac")); }
// TRANSLATORS: below "Every game on this Mac"
std::string_view gamesCategoryNote() { return constant(KEY("Apps that call themselves games, now and later.")); }
// TRANSLATORS: in the place of apps
std::string_view noApps() { return constant(KEY("No apps yet.")); }
// TRANSLATORS: in the place of websites
std::string_view noWebsites() { return constant(KEY("No websites yet.")); }
// TRANSLATORS: it: the List
std::string_view notUsed() { return constant(KEY("No Block uses it yet.")); }
std::string_view picksUpGames() { return constant(KEY("Ready-made Lists pick up new games you install.")); }
std::string_view blockedOnInstall()
{
    // TRANSLATORS: it: the List
    return constant(KEY("Apps on it are blocked from the moment you install them."));
}
std::string_view searchHint()
{
    // TRANSLATORS: below the search field of the page
    return constant(KEY("Search finds Lists by name, app or website. To block a website, type its whole address."));
}

// TRANSLATORS: the title of the editor
std::string_view newListTitle() { return constant(KEY("New List")); }
std::string_view yoursNote()
{
    return constant(KEY("Add the apps and websites you want quiet together. Blocks and Focus use the whole List."));
}
// TRANSLATORS: a label: the name of a List
std::string_view name() { return constant(KEY("Name")); }
// TRANSLATORS: in the empty field of a name: two examples
std::string_view namePlaceholder() { return constant(KEY("Like Inbox or Shopping")); }
// TRANSLATORS: a label: the colour of a List
std::string_view colour() { return constant(KEY("Colour")); }
// TRANSLATORS: a label: the picture of a List
std::string_view symbol() { return constant(KEY("Symbol")); }
// TRANSLATORS: the words on a button: takes an app or website off the List
std::string_view remove() { return constant(KEY("Remove")); }

// TRANSLATORS: goes on with "choose an app…"
std::string_view dragApps() { return constant(KEY("Drag apps here from Finder or the Dock, or")); }
// TRANSLATORS: the words on a button: goes on after "Drag apps here from Finder or the Dock, or"
std::string_view chooseApp() { return constant(KEY("choose an app…")); }
// TRANSLATORS: the title of a choice of apps
std::string_view chooseAppTitle() { return constant(KEY("Apps on this Mac")); }
// TRANSLATORS: in the empty field that searches apps
std::string_view filterApps() { return constant(KEY("Find an app")); }
std::string_view noAppsFound() { return constant(KEY("No app by that name.")); }

// TRANSLATORS: in the empty field of a website; example.com stays as it is
std::string_view addWebsite() { return constant(KEY("Add a website, like example.com")); }
// TRANSLATORS: spoken: the name of the field of a website
std::string_view addWebsiteLabel() { return constant(KEY("Add a website")); }
// TRANSLATORS: the words on a button: adds the website
std::string_view add() { return constant(KEY("Add")); }

// TRANSLATORS: the words on a button
std::string_view resetToDefault() { return constant(KEY("Reset to Default")); }
// TRANSLATORS: the words on a button
std::string_view cancel() { return constant(KEY("Cancel")); }
// TRANSLATORS: the words on a button
std::string_view save() { return constant(KEY("Save")); }
// TRANSLATORS: the words on a button
std::string_view createList() { return constant(KEY("Make List")); }
// TRANSLATORS: why a List cannot be saved yet: it has no name
std::string_view problemName() { return constant(KEY("Give it a name.")); }
// TRANSLATORS: it: the List that is being deleted
std::string_view deleteUnused() { return constant(KEY("No Block uses it.")); }
// TRANSLATORS: the words on a button
std::string_view delete_() { return constant(KEY("Delete")); }
// TRANSLATORS: the words on a button
std::string_view deleteList() { return constant(KEY("Delete List…")); }

// TRANSLATORS: stands where an app is being dragged to: %@ its name
std::string dropToAdd(std::string_view name) { return localized(KEY("Drop to add %@"), name); }
// TRANSLATORS: %@ the name of a List
std::string deleteTitle(std::string_view name) { return localized(KEY("Delete %@?"), name); }
// TRANSLATORS: the title of the editor: %@ the name of a List
std::string editTitle(std::string_view name) { return localized(KEY("Edit %@"), name); }
std::string appsOnThisMac(std::int64_t count)
{
    return count == 1 ? localized(KEY("1 app on this Mac")) : localized(COUNTED("%lld apps on this Mac"), count);
}
std::string readyMadeIncludes(std::int64_t count)
{
    if (count == 1)
        // TRANSLATORS: below the name of a List
        return localized(KEY("Ready-made · includes the 1 app on this Mac"));
    // TRANSLATORS: below the name of a List: %lld how many of its apps are on this computer
    return localized(COUNTED("Ready-made · includes the %lld apps on this Mac"), count);
}
// TRANSLATORS: below the name of a List that the user made: %@ what is on it
std::string yoursSummary(std::string_view text) { return localized(KEY("Yours · %@"), text); }
// TRANSLATORS: %@ the name of a List
std::string allOf(std::string_view name) { return localized(KEY("All of %@"), name); }
// TRANSLATORS: in the place of an app: %@ a category of apps
std::string category(std::string_view category) { return localized(KEY("Every app in %@"), category); }
// TRANSLATORS: %@ the names of Blocks, one or several
std::string usedBy(std::string_view blocks) { return localized(KEY("Used by %@."), blocks); }
// TRANSLATORS: %@ what was searched
std::string noMatch(std::string_view query) { return localized(KEY("No Lists match “%@”"), query); }
std::string goodFit(std::string_view site, std::string_view list)
{
    // TRANSLATORS: %1$@ a website, %2$@ the name of a List
    return localized(KEY("Websites live inside Lists. To block %@, add it to one: %@ is a good fit."), site, list);
}
std::string addToOne(std::string_view site)
{
    // TRANSLATORS: %@ a website
    return localized(KEY("Websites live inside Lists. To block %@, add it to one."), site);
}
std::string addSiteToList(std::string_view site, std::string_view list)
{
    // TRANSLATORS: the words on a button: %1$@ a website, %2$@ the name of a List
    return localized(KEY("Add %@ to %@…"), site, list);
}
// TRANSLATORS: the words on a button: %@ a website
std::string addSiteToAList(std::string_view site) { return localized(KEY("Add %@ to a List…"), site); }
std::string readyMadeNote(std::int64_t found)
{
    if (found == 1)
        return localized(KEY(
            "A ready-made List. Orvel found 1 of its apps on this Mac; the others are blocked if you install them."));
    if (found == 0)
        return localized(
            KEY("A ready-made List. None of its apps are on this Mac yet; each is blocked if you install it."));
    return localized(
        COUNTED(
            "A ready-made List. Orvel found %lld of its apps on this Mac; the others are blocked if you install them."),
        found);
}
// TRANSLATORS: the websites on a List: %1$lld how many there are, %2$lld how many there may be
std::string counter(std::int64_t count, std::int64_t of) { return localized(KEY("%lld of %lld"), count, of); }
std::string invalidWebsite(std::optional<std::string_view> suggestion)
{
    if (!suggestion)
        return localized(KEY("That doesn’t look like a website yet. Orvel blocks whole websites, so there’s no need "
                             "for a page address."));
    // TRANSLATORS: %@ a website
    return localized(KEY("That doesn’t look like a website yet. Try %@. Orvel blocks whole websites, so there’s no "
                         "need for a page address."),
        *suggestion);
}
std::string overCap(std::int64_t count)
{
    return count == 1 ? localized(KEY("A List holds 40 websites at most, so 1 didn’t fit."))
                      : localized(COUNTED("A List holds 40 websites at most, so %lld didn’t fit."), count);
}
std::string coverage(std::string_view browsers, std::optional<std::string_view> uncovered)
{
    if (!uncovered)
        // TRANSLATORS: %@ the names of browsers, one or several
        return localized(KEY("Blocked in %@."), browsers);
    // TRANSLATORS: %1$@ and %2$@ the names of browsers, one or several
    return localized(KEY("Blocked in %@. %@ isn’t covered yet."), browsers, *uncovered);
}
std::string guarded(std::string_view block, std::string_view until)
{
    // TRANSLATORS: %1$@ the name of a Block, %2$@ a clock time
    return localized(KEY("%@ is Firm until %@, so this List can gain apps and websites, not lose them."), block, until);
}
std::string deleteUsedBy(std::string_view blocks)
{
    // TRANSLATORS: %@ the names of Blocks, one or several
    return localized(KEY("%@ use this List. They’ll stop blocking these apps."), blocks);
}

}
