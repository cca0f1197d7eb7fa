#include "OrvelPlatform/Views/Primitives.h"

#include <gtest/gtest.h>

#include "Tests/OrvelPlatform/Views/Drawn.h"

using namespace orvel;

TEST(Primitives, stayWhereTheirParentsPutThem)
{
    struct Case {
        std::string_view name;
        View view;
        std::string_view marks;
        Environment environment {};
    };
    const auto small = box(10, 10);
    const auto frame = [&](Alignment alignment, View content) {
        return Frame { FrameLength::exactly(30), FrameLength::exactly(40), alignment, std::move(content) };
    };
    const Case cases[] = {
        { "a frame at its corner", frame(Alignment::bottomTrailing, small), "fill 20,30 10×10 rectangle #000000\n" },
        { "the same from the right", frame(Alignment::bottomTrailing, small), "fill 0,30 10×10 rectangle #000000\n",
            rightToLeft },
        { "larger than its frame", frame(Alignment::center, box(50, 20)), "fill -10,10 50×20 rectangle #000000\n" },
        { "padding turns with the layout", Padding { { 1, 5, 2, 3 }, filler() }, "fill 3,1 22×37 ellipse #000000\n",
            rightToLeft },
        { "padding larger than its place", Padding { Insets::all(50), filler() }, "fill 50,50 0×0 ellipse #000000\n" },
        { "in front by an alignment",
            frame(Alignment::topLeading, Overlay { small, box(4, 4), Alignment::topTrailing }),
            "fill 0,0 10×10 rectangle #000000\nfill 6,0 4×4 rectangle #000000\n" },
        { "behind, as large as its content", frame(Alignment::topLeading, Background { words("ab"), filler() }),
            "fill 0,0 10×12 ellipse #000000\ntext 0,0 10×12 \"ab\" #000000\n" },
        { "scopes", Opacity { 0.5, Accentable { Scale { 2, Clipped { Capsule {}, filler() } } } },
            "opacity 0.5\n  accent\n    scale 2\n      clip -15,-20 60×80 capsule\n"
            "        fill -15,-20 60×80 ellipse #000000\n" },
        { "a value of the environment", With { rightToLeft, HStack { .children = { small, Spacer {} } } },
            "fill 20,15 10×10 rectangle #000000\n" },
        { "an unknown symbol by its name", Icon { .name = "no-such", .fallback = "none", .size = 10, .paint = ink },
            "symbol 10,15 10×10 no-such width 0.73 #000000\n" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(drawn(c.view, { 0, 0, 30, 40 }, c.environment), c.marks) << c.name;
}

TEST(Frames, keepTheirLimits)
{
    struct Case {
        std::string_view name;
        FrameLength width;
        ProposedLength proposed;
        double content;
        double result;
    };
    const Case cases[] = {
        { "as long as its content", {}, 50, 20, 20 },
        { "exactly", FrameLength::exactly(8), 50, 20, 8 },
        { "at least, with a short content", FrameLength::atLeast(30), {}, 20, 30 },
        { "at least, with a long one", FrameLength::atLeast(10), {}, 20, 20 },
        { "at most, offered more", FrameLength::atMost(30), 50, 20, 30 },
        { "at most, offered less than the content", FrameLength::atMost(30), 10, 20, 20 },
        { "filling", FrameLength::filling(), 50, 20, 50 },
        { "filling, ideally", FrameLength::filling(), {}, 20, 20 },
        { "an ideal within limits", { 5, 12, 30 }, {}, 20, 12 },
        { "limits the wrong way round", { 30, {}, 10 }, 50, 20, 30 },
    };
    for (const auto& c : cases)
        EXPECT_EQ(measure(Frame { c.width, {}, {}, box(c.content, 1) }, { c.proposed, 1 }, {}).size.width, c.result)
            << c.name;
}

TEST(Texts, breakAtSpacesWithinTheirLimits)
{
    struct Case {
        std::string_view name;
        Text text;
        Size in;
        std::string_view marks;
    };
    auto balanced = words("aaaa bbbb cc dd");
    balanced.balanced = true;
    auto centered = words("aaaa bb");
    centered.alignment = TextAlignment::center;
    const Case cases[] = {
        { "one line", words("aa bb"), { 100, 12 }, "text 0,0 25×12 \"aa bb\" #000000\n" },
        { "as many as are needed", words("aa bb cc"), { 26, 40 }, "text 0,0 25×24 \"aa bb / cc\" #000000\n" },
        { "the limit ends in an ellipsis", words("aa bb cc dd", 1), { 31, 40 }, "text 0,0 30×12 \"aa bb…\" #000000\n" },
        { "so does the height", words("aa bb cc dd"), { 26, 13 }, "text 0,0 25×12 \"aa b…\" #000000\n" },
        { "a word longer than the line", words("aaaaaaaa"), { 26, 40 }, "text 0,0 25×24 \"aaaaa / aaa\" #000000\n" },
        { "balanced", balanced, { 65, 40 }, "text 0,0 45×24 \"aaaa bbbb / cc dd\" #000000\n" },
        { "centred", centered, { 21, 40 }, "text 0.5,0 20×24 \"aaaa / bb\" #000000\n" },
        { "letters of several bytes", words("日本 ا"), { 100, 12 }, "text 0,0 20×12 \"日本 ا\" #000000\n" },
        { "no room at all", words("aaa", 1), { 0, 12 }, "text 0,0 5×12 \"…\" #000000\n" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(drawn(c.text, { {}, c.in }), c.marks) << c.name;
}

TEST(Elements, hideTheElementsBelowThemAndNeverTheActions)
{
    const View action = Action { "Go", "Start", { { "minutes", std::int64_t { 3 } } }, words("Go now") };
    const View view = VStack { .alignment = HorizontalAlignment::leading,
        .children = { words("seen"), Hidden { words("not seen") },
            Element { ElementRole::group, "all of it", Scale { 2, action } } } };
    RecordingCanvas canvas;
    draw(view, canvas, { 0, 0, 40, 36 }, {});
    EXPECT_EQ(canvas.text(),
        "text 0,0 20×12 \"seen\" #000000\n"
        "text 0,12 40×12 \"not seen\" #000000\n"
        "scale 2\n"
        "  text -15,18 60×24 \"Go now\" #000000\n"
        "element text 0,0 20×12 \"seen\"\n"
        "element group 0,24 30×12 \"all of it\"\n"
        "action -15,18 60×24 \"Go\" Start minutes=3\n");
}
