#include "WidgetHost/Tray/TrayMenu.h"

#include <algorithm>
#include <fmt/format.h>
#include <gio/gio.h>
#include <utility>

#include "OrvelPlatform/Desktop/BusContract.h"
#include "OrvelPlatform/Desktop/BusValues.h"
#include "WidgetHost/Tray/TrayInterfaces.h"

namespace orvel {

namespace {

using Item = TrayMenuItems::Item;
using Names = std::vector<std::string>; // of properties; none means all

/// The interface has no versions that matter; this is the one that everybody says.
constexpr unsigned version = 3;

/// An underline in a label would mark the letter after it.
std::string escaped(const std::string& label)
{
    std::string text;
    for (const auto letter : boundedText(label)) {
        if (letter == '_')
            text += '_';
        text += letter;
    }
    return text;
}

bool isAsked(const Names& names, std::string_view name)
{
    return names.empty() || std::ranges::find(names, name) != names.end();
}

/// Writes the properties of an item that are asked for.
class PropertyWriter {
public:
    explicit PropertyWriter(const Names& names) : m_names(names) { }

    template <typename T>
    void add(const char* name, const T& value)
    {
        if (isAsked(m_names, name))
            m_dictionary.add(name, value);
    }
    [[nodiscard]] _GVariant* end() { return m_dictionary.end(); }

private:
    const Names& m_names;
    DictionaryWriter m_dictionary;
};

_GVariant* propertiesOf(const TrayEntry& entry, const Names& names)
{
    PropertyWriter properties(names);
    properties.add("visible", true);
    properties.add("enabled", entry.isEnabled);
    if (entry.id.empty())
        properties.add("type", "separator");
    else
        properties.add("label", escaped(entry.label));
    if (entry.isChecked) {
        properties.add("toggle-type", "checkmark");
        properties.add("toggle-state", std::int32_t { *entry.isChecked ? 1 : 0 });
    }
    return properties.end();
}

_GVariant* rootProperties(const Names& names)
{
    PropertyWriter properties(names);
    properties.add("children-display", "submenu");
    return properties.end();
}

_GVariant* children(const std::vector<Item>& items, const Names& names)
{
    GVariantBuilder list;
    g_variant_builder_init(&list, G_VARIANT_TYPE("av"));
    for (const auto& item : items) {
        auto* properties = propertiesOf(item.entry, names);
        g_variant_builder_add(
            &list, "v", g_variant_new("(i@a{sv}@av)", item.number, properties, g_variant_new("av", nullptr)));
    }
    return g_variant_builder_end(&list);
}

std::vector<int> numbers(_GVariant* list)
{
    std::vector<int> all(g_variant_n_children(list));
    for (gsize index = 0; index < all.size(); ++index)
        g_variant_get_child(list, index, "i", &all[index]);
    return all;
}

Names names(_GVariant* list)
{
    Names all;
    for (gsize index = 0; index < g_variant_n_children(list); ++index) {
        const char* name = nullptr;
        g_variant_get_child(list, index, "&s", &name);
        all.emplace_back(name);
    }
    return all;
}

int numberOf(const VariantHandle& argument)
{
    return g_variant_get_int32(argument.get());
}

_GVariant* numberList(const std::vector<int>& all)
{
    return g_variant_new_fixed_array(G_VARIANT_TYPE_INT32, all.data(), all.size(), sizeof(int));
}

Answer<Reply> reply(_GVariant* tuple)
{
    return Reply { .values = VariantHandle(g_variant_ref_sink(tuple)), .files = {} };
}

Answer<Reply> unknown(int number)
{
    return std::unexpected(
        requestFault(RequestFault::Kind::badArgument, fmt::format("There is no menu item {}.", number)));
}

}

TrayMenu::TrayMenu(const TrayContent& content, Chosen chosen)
    : m_isRightToLeft(content.isRightToLeft), m_chosen(std::move(chosen))
{
    m_items.set(content.menu);
}

std::expected<void, Fault> TrayMenu::serve(const BusConnection& connection)
{
    auto object = ServedObject::serve(
        connection, TrayPath::menu, trayInterface(TrayName::menu),
        [this](MethodCall call) { receive(std::move(call)); },
        [this](std::string_view name) { return menuProperty(name); });
    if (!object)
        return std::unexpected(object.error());
    m_object.emplace(*std::move(object));
    return {};
}

void TrayMenu::show(const TrayContent& content)
{
    const auto change = m_items.set(content.menu);
    m_isRightToLeft = content.isRightToLeft;
    if (!m_object)
        return;
    if (change.isLayout)
        m_object->emit("LayoutUpdated", g_variant_new("(ui)", m_items.revision(), TrayMenuItems::root));
    if (change.items.empty())
        return;
    GVariantBuilder updated;
    g_variant_builder_init(&updated, G_VARIANT_TYPE("a(ia{sv})"));
    for (const auto number : change.items)
        g_variant_builder_add(&updated, "(i@a{sv})", number, propertiesOf(m_items.find(number)->entry, {}));
    m_object->emit("ItemsPropertiesUpdated", g_variant_new("(a(ia{sv})a(ias))", &updated, nullptr));
}

void TrayMenu::receive(MethodCall call)
{
    call.answer(answer(call));
    for (const auto& id : std::exchange(m_choices, {}))
        m_chosen(id);
}

Answer<Reply> TrayMenu::answer(const MethodCall& call)
{
    const auto method = call.method();
    if (method == "GetLayout")
        return layout(call);
    if (method == "GetGroupProperties")
        return groupProperties(call);
    if (method == "GetProperty")
        return property(call);
    if (method == "Event")
        return event(call);
    if (method == "EventGroup")
        return eventGroup(call);
    if (method == "AboutToShow")
        return aboutToShow(call);
    return aboutToShowGroup(call);
}

Answer<Reply> TrayMenu::layout(const MethodCall& call) const
{
    const auto parent = numberOf(call.argument(0));
    const auto depth = numberOf(call.argument(1)); // negative: all there is
    const auto asked = names(call.argument(2).get());
    if (!isKnown(parent))
        return unknown(parent);
    const auto* item = m_items.find(parent);
    auto* properties = item ? propertiesOf(item->entry, asked) : rootProperties(asked);
    auto* below = children(item || depth == 0 ? std::vector<Item> {} : m_items.items(), asked);
    return reply(g_variant_new("(u(i@a{sv}@av))", m_items.revision(), parent, properties, below));
}

Answer<Reply> TrayMenu::groupProperties(const MethodCall& call) const
{
    const auto wanted = numbers(call.argument(0).get());
    const auto asked = names(call.argument(1).get());
    GVariantBuilder list;
    g_variant_builder_init(&list, G_VARIANT_TYPE("a(ia{sv})"));
    const auto isWanted = [&](int number) {
        return wanted.empty() || std::ranges::find(wanted, number) != wanted.end();
    };
    if (isWanted(TrayMenuItems::root))
        g_variant_builder_add(&list, "(i@a{sv})", TrayMenuItems::root, rootProperties(asked));
    for (const auto& item : m_items.items()) {
        if (isWanted(item.number))
            g_variant_builder_add(&list, "(i@a{sv})", item.number, propertiesOf(item.entry, asked));
    }
    return reply(g_variant_new("(a(ia{sv}))", &list));
}

Answer<Reply> TrayMenu::property(const MethodCall& call) const
{
    const auto number = numberOf(call.argument(0));
    const auto name = text(call.argument(1).get()).value_or("");
    if (!isKnown(number))
        return unknown(number);
    const auto* item = m_items.find(number);
    const VariantHandle all(g_variant_ref_sink(item ? propertiesOf(item->entry, {}) : rootProperties({})));
    const auto value = lookUp(all.get(), name.c_str());
    if (!value)
        return std::unexpected(requestFault(
            RequestFault::Kind::badArgument, fmt::format("The item has no property \"{}\".", boundedText(name))));
    return reply(g_variant_new("(v)", value.get()));
}

Answer<Reply> TrayMenu::event(const MethodCall& call)
{
    const auto number = numberOf(call.argument(0));
    if (!isKnown(number))
        return unknown(number);
    take(number, text(call.argument(1).get()).value_or(""));
    return reply(g_variant_new("()"));
}

Answer<Reply> TrayMenu::eventGroup(const MethodCall& call)
{
    const auto events = call.argument(0);
    std::vector<int> strangers;
    const auto count = g_variant_n_children(events.get());
    for (gsize index = 0; index < count; ++index) {
        int number = 0;
        const char* event = nullptr;
        g_variant_get_child(events.get(), index, "(i&svu)", &number, &event, nullptr, nullptr);
        if (isKnown(number))
            take(number, event);
        else
            strangers.push_back(number);
    }
    if (count > 0 && strangers.size() == count)
        return unknown(strangers.front());
    return reply(g_variant_new("(@ai)", numberList(strangers)));
}

Answer<Reply> TrayMenu::aboutToShow(const MethodCall& call) const
{
    const auto number = numberOf(call.argument(0));
    if (!isKnown(number))
        return unknown(number);
    return reply(g_variant_new("(b)", FALSE)); // it is always up to date
}

Answer<Reply> TrayMenu::aboutToShowGroup(const MethodCall& call) const
{
    auto strangers = numbers(call.argument(0).get());
    std::erase_if(strangers, [this](int number) { return isKnown(number); });
    return reply(g_variant_new("(@ai@ai)", numberList({}), numberList(strangers)));
}

VariantHandle TrayMenu::menuProperty(std::string_view name) const
{
    const auto value = [&]() -> _GVariant* {
        if (name == "Version")
            return g_variant_new_uint32(version);
        if (name == "TextDirection")
            return g_variant_new_string(m_isRightToLeft ? "rtl" : "ltr");
        if (name == "IconThemePath")
            return g_variant_new_strv(nullptr, 0);
        return g_variant_new_string("normal"); // Status
    };
    return VariantHandle(g_variant_ref_sink(value()));
}

bool TrayMenu::isKnown(int number) const
{
    return number == TrayMenuItems::root || m_items.find(number);
}

/// Of what a tray tells, only clicks matter: not that it opened the menu, nor what the pointer is over.
void TrayMenu::take(int number, std::string_view event)
{
    const auto* item = m_items.find(number);
    if (event == "clicked" && item && item->entry.isEnabled && !item->entry.id.empty())
        m_choices.push_back(item->entry.id);
}

}
