#pragma once

#include <string>

#include "OrvelPlatform/Base/JsonForm.h"
#include "OrvelWidgetsUI/ControlContent.h"
#include "OrvelWidgetsUI/WidgetContent.h"

namespace orvel {

// How tools print contents: under the fields' own names, a link as its URL.

template <>
struct JsonForm<OrvelLink> {
    static std::string text(const OrvelLink& link) { return link.url().text; }
};

template <>
struct JsonForm<WidgetContent::State> {
    static constexpr std::string_view noun = "content state";
};

template <>
struct JsonForm<WidgetContent::Number> {
    using Number = WidgetContent::Number;
    static constexpr auto fields = std::tuple {
        JsonField { "label", &Number::label },
        JsonField { "value", &Number::value },
    };
};

template <>
struct JsonForm<WidgetContent::Bar> {
    using Bar = WidgetContent::Bar;
    static constexpr auto fields = std::tuple {
        JsonField { "height", &Bar::height },
        JsonField { "isToday", &Bar::isToday },
        JsonField { "label", &Bar::label },
    };
};

template <>
struct JsonForm<WidgetContent> {
    static constexpr auto fields = std::tuple {
        JsonField { "breatheMinutes", &WidgetContent::breatheMinutes },
        JsonField { "detail", &WidgetContent::detail },
        JsonField { "kicker", &WidgetContent::kicker },
        JsonField { "link", &WidgetContent::link },
        JsonField { "numbers", &WidgetContent::numbers },
        JsonField { "progress", &WidgetContent::progress },
        JsonField { "sentence", &WidgetContent::sentence },
        JsonField { "showsRing", &WidgetContent::showsRing },
        JsonField { "smallDetail", &WidgetContent::smallDetail },
        JsonField { "smallTitle", &WidgetContent::smallTitle },
        JsonField { "state", &WidgetContent::state },
        JsonField { "symbol", &WidgetContent::symbol },
        JsonField { "title", &WidgetContent::title },
        JsonField { "tone", &WidgetContent::tone },
        JsonField { "week", &WidgetContent::week },
    };
};

template <>
struct JsonForm<ControlContent::Kind> {
    static constexpr std::string_view noun = "kind of control";
};

template <>
struct JsonForm<ControlContent> {
    static constexpr auto fields = std::tuple {
        JsonField { "barText", &ControlContent::barText },
        JsonField { "isOn", &ControlContent::isOn },
        JsonField { "kind", &ControlContent::kind },
        JsonField { "spokenState", &ControlContent::spokenState },
        JsonField { "symbol", &ControlContent::symbol },
        JsonField { "title", &ControlContent::title },
        JsonField { "value", &ControlContent::value },
    };
};

}
