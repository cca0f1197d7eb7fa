#include "Tools/orvelctl/pictures/GalleryWords.h"

#include "OrvelWidgetsUI/WidgetFixtures.h"

namespace orvelctl {

namespace {

using namespace orvel;
using State = WidgetContent::State;

WidgetContent sample(State state)
{
    const Calendar utc(TimeZone::utc());
    const auto moment = WidgetFixtures::moment(state, utc);
    return WidgetContent::status(moment, Locale::english(), utc);
}

WidgetContent with(WidgetContent content, std::string title, std::string detail, std::string smallDetail)
{
    content.smallTitle = title;
    content.title = std::move(title);
    content.detail = std::move(detail);
    content.smallDetail = std::move(smallDetail);
    return content;
}

struct Numbers {
    std::string_view values[3];
    std::string_view labels[3];
};

WidgetContent with(WidgetContent content, std::string_view kicker, const Numbers& numbers, std::u8string_view days)
{
    content.kicker = kicker;
    content.numbers.clear();
    for (std::size_t i = 0; i < 3; ++i)
        content.numbers.push_back({ std::string(numbers.values[i]), std::string(numbers.labels[i]) });
    const std::size_t bytes = days.size() / content.week.size();
    for (std::size_t i = 0; i < content.week.size(); ++i)
        content.week[i].label.assign(days.begin() + static_cast<std::ptrdiff_t>(i * bytes),
            days.begin() + static_cast<std::ptrdiff_t>((i + 1) * bytes));
    return content;
}

}

std::vector<WordsSample> longWords()
{
    auto large = with(sample(State::focus), "1,440 min left", "Ends at 11:26 AM · Social, Chat, News, Video, Shopping",
        "ends 11:26 AM");
    large.numbers = { { "1284", "breaths" }, { "25730", "min breathed" }, { "—", "stayed off" } };
    return {
        { "long-name", "A name of 60 characters",
            with(sample(State::now), "Finish the quarterly report and answer every single question",
                "Until 12:00 PM · 1 h 12 m left", "until 12:00 PM") },
        { "three-names", "Three joined names",
            with(sample(State::now), "Morning · Deep work · Writing hours", "Until 12:00 PM · 1 h 12 m left",
                "until 12:00 PM") },
        { "long-span", "A long span",
            with(sample(State::next), "Evening", "Tomorrow 9:00 AM – 10:30 AM · Ultra Hard",
                "Tomorrow 9:00 AM · Ultra Hard") },
        { "long-both", "A long name and a long span",
            with(sample(State::next), "Finish the quarterly report and answer every single question",
                "Tomorrow 9:00 AM – 10:30 AM · Ultra Hard", "Tomorrow 9:00 AM · Ultra Hard") },
        { "one-word", "A name without a space",
            with(sample(State::now), "Donaudampfschifffahrtsgesellschaftskapitänsmützenabzeichen",
                "Until 12:00 PM · 1 h 12 m left", "until 12:00 PM") },
        { "large-numbers", "Large numbers", large },
    };
}

std::vector<WordsSample> japaneseWords()
{
    const Numbers numbers { { "3", "7", "12" }, { "呼吸", "分の呼吸", "回がまん" } };
    const std::u8string_view days = u8"木金土日月火水";
    return {
        { "ja-now", "日本語",
            with(with(sample(State::now), "朝の集中 · 深い作業", "12:00まで · 残り1時間12分", "12:00まで"), "現在",
                numbers, days) },
        { "ja-next", "日本語, a long name",
            with(with(sample(State::next), "夕方の家族との時間と読書のためのとても静かなひととき",
                     "明日 19:00 – 22:00 · しっかり", "明日 19:00 · しっかり"),
                "次", numbers, days) },
    };
}

std::vector<WordsSample> arabicWords()
{
    const Numbers numbers { { "3", "7", "12" }, { "أنفاس", "دقائق تنفّس", "مرات امتناع" } };
    const std::u8string_view days = u8"خجسحنثر";
    return {
        { "ar-now", "العربية",
            with(with(sample(State::now), "الصباح · عمل عميق", "حتى 12:00 · بقي ساعة و12 دقيقة", "حتى 12:00"), "الآن",
                numbers, days) },
        { "ar-focus", "العربية, a Focus",
            with(with(sample(State::focus), "بقيت 38 دقيقة", "ينتهي في 11:26 · التواصل، الدردشة", "ينتهي 11:26"),
                "تركيز", numbers, days) },
        { "ar-next", "العربية, a long name",
            with(with(sample(State::next), "إنهاء التقرير الفصلي والإجابة عن كل سؤال على حدة",
                     "غدًا 19:00 – 22:00 · حازم جدًا", "غدًا 19:00 · حازم جدًا"),
                "التالي", numbers, days) },
    };
}

}
