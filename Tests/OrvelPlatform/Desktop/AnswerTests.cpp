#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <gio/gio.h>
#include <gio/gunixfdlist.h>
#include <sys/mman.h>
#include <unistd.h>

#include "OrvelPlatform/Desktop/AnswerReading.h"
#include "OrvelPlatform/Desktop/AnswerWriting.h"
#include "OrvelPlatform/Desktop/BusContract.h"

namespace orvel {

namespace {

using Kind = RequestFault::Kind;

TEST(BoundedText, isCutAtACharacterAndIsAlwaysUTF8)
{
    const std::string most(4096, 'a');
    struct Case {
        std::string_view name;
        std::string text, expected;
    };
    const Case cases[] = {
        { "short", "ü", "ü" },
        { "exactly as long as may be", most, most },
        { "one more", most + "b", most },
        { "a character across the bound", most.substr(1) + "ü", most.substr(1) },
        { "four bytes across the bound", most.substr(3) + "\U0001F319", most.substr(3) },
        { "not UTF-8",
            "a\xff"
            "b",
            "a\xef\xbf\xbd"
            "b" },
        { "a zero inside", std::string("a\0b", 3),
            "a\xef\xbf\xbd"
            "b" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(boundedText(c.text), c.expected) << c.name;
    EXPECT_LE(boundedText(std::string(9000, '\xff')).size(), 4096U);
}

TEST(ATimelineThatIsTooLarge, endsEarlierAndIsAskedForAnewThen)
{
    const auto at = [](int second) { return Date { std::chrono::seconds { second } }; };
    const ExtensionTimeline timeline { .entries = { { at(1), 2 }, { at(2), 2 }, { at(3), 0 }, { at(4), 1 } },
        .moments = { "cccc", "dddd", "aaaa" },
        .reload = at(9) };
    // An entry has 16 bytes, a moment its own and 8.
    const ExtensionTimeline three {
        .entries = { { at(1), 0 }, { at(2), 0 }, { at(3), 1 } }, .moments = { "aaaa", "cccc" }, .reload = at(4)
    };
    EXPECT_EQ(shortened(timeline, 3 * 16 + 2 * 12), three);
    EXPECT_EQ(shortened(timeline, 4 * 16 + 3 * 12 - 1), three);
    EXPECT_EQ(shortened(timeline, 4 * 16 + 3 * 12).reload, at(9));
    EXPECT_TRUE(shortened(timeline, 27).entries.empty());
}

template <typename T>
Answer<T> answered(const char* reply)
{
    ErrorHandle error;
    ReceivedReply received {
        .values = VariantHandle(g_variant_parse(nullptr, reply, nullptr, nullptr, ErrorOut { error })), .files = {}
    };
    EXPECT_TRUE(received.values) << reply << (error ? error->message : "");
    return answerFrom<T>(received);
}

TEST(AReply, isRefusedWhereItBreaksTheContract)
{
    for (const char* reply : {
             "(@a(xu) [], [@ay []], int64 5)", // no entry
             "([(int64 1, uint32 1)], [b'm'], int64 5)", // no such moment
             "([(int64 2, uint32 0), (1, 0)], [b'm'], int64 5)", // dates go back
             "([(int64 9223372036854775807, uint32 0)], [b'm'], int64 5)", // beyond the year 9999
             "([(int64 1, uint32 0)], [b'm'], int64 -9223372036854775808)",
         })
        EXPECT_FALSE(answered<ExtensionTimeline>(reply)) << reply;
    EXPECT_TRUE(answered<ExtensionTimeline>("([(int64 2, uint32 0), (2, 0)], [b'm'], int64 -5)"));

    const std::string control = "'title': <'t'>, 'value': <'v'>, 'symbol': <'s'>";
    EXPECT_TRUE(answered<ControlValue>(("({" + control + ", 'later': <1>},)").c_str()));
    for (const char* wrong : { "'isOn': <1>", "'tint': <(0.0, 0.0, 0.0, 1.5)>", "'tint': <(0.0, nan, 0.0, 1.0)>",
             "'glyphValue': <inf>", "'end': <'soon'>", "'icon': <'moon'>" })
        EXPECT_FALSE(answered<ControlValue>(("({" + control + ", " + wrong + "},)").c_str())) << wrong;
    EXPECT_FALSE(answered<ControlValue>("({'title': <'t'>, 'value': <'v'>},)"));

    const std::string member = "'kind': <'k'>, 'displayName': <''>, 'description': <''>, 'families': <@as []>, ";
    using Members = std::vector<ExtensionMember>;
    EXPECT_TRUE(answered<Members>(("([{" + member + "'role': <'toggle'>, 'intents': <@aa{sv} []>}],)").c_str()));
    EXPECT_FALSE(answered<Members>(("([{" + member + "'role': <'slider'>, 'intents': <@aa{sv} []>}],)").c_str()));
    EXPECT_FALSE(
        answered<Members>(("([{" + member + "'role': <'toggle'>, 'intents': <[{'name': <'x'>}]>}],)").c_str()));
}

/// A memory file of so many bytes with these seals.
FileDescriptor memory(std::size_t size, unsigned seals)
{
    FileDescriptor file(::memfd_create("test", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    EXPECT_EQ(::ftruncate(file.get(), static_cast<off_t>(size)), 0);
    EXPECT_EQ(::fcntl(file.get(), F_ADD_SEALS, seals), 0);
    return file;
}

constexpr unsigned enough = F_SEAL_WRITE | F_SEAL_SHRINK;

struct PictureReply {
    std::string_view name;
    std::string width = "uint32 2", height = "uint32 2", stride = "uint32 8";
    std::string layers = "[('whole', <handle 0>)]";
    std::string frame = "(0.0, 0.0, 1.0, 1.0)";
    std::size_t bytes = 16;
    unsigned seals = enough;
};

Answer<HostPicture> pictureOf(const PictureReply& c)
{
    const auto text = "({'width': <" + c.width + ">, 'height': <" + c.height + ">, 'stride': <" + c.stride
        + ">, 'layers': <" + c.layers + ">, 'link': <''>, 'elements': <[('text', 'l', " + c.frame
        + ")]>, 'actions': <@a(s(dddd)sa{sv}) []>},)";
    ReceivedReply reply { .values = VariantHandle(g_variant_parse(nullptr, text.c_str(), nullptr, nullptr, nullptr)),
        .files = FDListHandle(g_unix_fd_list_new()) };
    EXPECT_TRUE(reply.values) << text;
    const auto file = memory(c.bytes, c.seals);
    g_unix_fd_list_append(reply.files.get(), file.get(), nullptr);
    return answerFrom<HostPicture>(reply);
}

TEST(APicture, isRefusedWhereItCouldHarmAHost)
{
    EXPECT_TRUE(pictureOf({ .name = "sound" }));
    EXPECT_TRUE(pictureOf({ .name = "rows with gaps", .stride = "uint32 12", .bytes = 24 }));
    const PictureReply cases[] = {
        { .name = "no width", .width = "uint32 0" },
        { .name = "too wide", .width = "uint32 4097", .stride = "uint32 16388", .bytes = 32776 },
        { .name = "rows overlap", .stride = "uint32 4", .bytes = 8 },
        { .name = "half a pixel", .stride = "uint32 9", .bytes = 18 },
        { .name = "a stride that wraps round", .stride = "uint64 4294967304" },
        { .name = "more than 32 MiB", .width = "uint32 4096", .height = "uint32 4096", .stride = "uint32 16384" },
        { .name = "a file too short", .bytes = 15 },
        { .name = "a file too long", .bytes = 17 },
        { .name = "can be written", .seals = F_SEAL_SHRINK },
        { .name = "can be cut", .seals = F_SEAL_WRITE },
        { .name = "a file that did not come", .layers = "[('whole', <handle 1>)]" },
        { .name = "a negative file", .layers = "[('whole', <handle -1>)]" },
        { .name = "no layer", .layers = "@a(sv) []" },
        { .name = "half of a tinted picture", .layers = "[('default', <handle 0>)]" },
        { .name = "one layer twice", .layers = "[('whole', <handle 0>), ('whole', <handle 0>)]" },
        { .name = "no PNG", .layers = "[('whole', <b'GIF89a'>)]" },
        { .name = "neither file nor PNG", .layers = "[('whole', <'pixels'>)]" },
        { .name = "an endless frame", .frame = "(0.0, 0.0, inf, 1.0)" },
        { .name = "a frame of less than nothing", .frame = "(0.0, 0.0, -1.0, 1.0)" },
    };
    for (const auto& c : cases) {
        const auto picture = pictureOf(c);
        ASSERT_FALSE(picture) << c.name;
        EXPECT_EQ(picture.error().kind, Kind::badReply) << c.name;
    }
}

TEST(APicture, isNotAnsweredBeyondItsBounds)
{
    const auto picture = [](std::uint32_t width, std::uint32_t height, std::size_t pixels, std::size_t layers = 1) {
        const ExtensionPicture::Layer layer { .name = "whole", .content = ExtensionPicture::Pixels(pixels) };
        const ExtensionPicture drawn { .width = width,
            .height = height,
            .layers = std::vector(layers, layer),
            .link = {},
            .elements = {},
            .actions = {} };
        return replyOf(drawn).has_value();
    };
    EXPECT_TRUE(picture(4096, 1, 4096));
    EXPECT_TRUE(picture(2048, 2048, 2048 * 2048, 2));
    EXPECT_FALSE(picture(2048, 2049, 2048 * 2049, 2));
    EXPECT_FALSE(picture(4097, 1, 4097));
    EXPECT_FALSE(picture(0, 1, 0));
    EXPECT_FALSE(picture(2, 2, 3));
    EXPECT_FALSE(picture(2, 2, 4, 0));
}

}

}
