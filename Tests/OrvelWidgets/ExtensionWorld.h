#pragma once

#include "OrvelWidgets/OrvelExtension.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"
#include "Tests/OrvelWidgets/IntentWorld.h"

/// An extension in a world of a test's own: its snapshot, its clock, and what it was asked to draw.
struct ExtensionWorld {
    static inline const orvel::Date present = orvel::dateFromISO8601("2026-03-04T10:48:30Z").value();
    static orvel::Calendar utc() { return orvel::Calendar(orvel::TimeZone::utc()); }

    static orvel::WidgetSnapshot sample(orvel::WidgetFixtures::Scene scene)
    {
        return orvel::WidgetFixtures::snapshot(scene, present, utc());
    }

    std::optional<orvel::WidgetSnapshot> snapshot;
    IntentWorld intents;
    std::vector<orvel::WidgetDrawing> drawings;
    std::expected<orvel::DrawnWidget, orvel::Fault> drawn = orvel::DrawnWidget {};
    int readings = 0;

    orvel::OrvelExtension extension { { .snapshot =
                                            [this] {
                                                ++readings;
                                                return snapshot;
                                            },
        .draw =
            [this](const orvel::WidgetDrawing& drawing) {
                drawings.push_back(drawing);
                return drawn;
            },
        .prepareForPictures = {},
        .clock = intents.clock,
        .workspace = intents.workspace,
        .foreground = intents.foreground } };

    explicit ExtensionWorld(std::optional<orvel::WidgetSnapshot> itsSnapshot = std::nullopt)
        : snapshot(std::move(itsSnapshot))
    {
        intents.clock.set(present);
    }
};
