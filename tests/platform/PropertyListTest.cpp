// SPDX-License-Identifier: MIT
#include "platform/PropertyList.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/PropertyListLimits.h"
#include "platform/Utf8.h"

namespace zelk {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

std::string xml(const std::string& content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist SYSTEM \"plist.dtd\">\n"
           "<plist version=\"1.0\">\n" +
           content + "\n</plist>\n";
}

std::string xmlDictionary(const std::string& content) {
    return xml("<dict>" + content + "</dict>");
}

std::string bytesOf(std::string_view hex) {
    const auto digit = [](char c) { return static_cast<int>(std::string_view("0123456789abcdef").find(c)); };
    std::string bytes;
    for (std::size_t at = 0; at + 1 < hex.size(); at += 2)
        bytes += static_cast<char>(digit(hex[at]) * 16 + digit(hex[at + 1]));
    return bytes;
}

/// Label "com.example.agent", Program "/opt/agent", ProgramArguments "/bin/agent", "-v" and "über", KeepAlive true and
/// Nice 5, as Python's plistlib writes them.
const std::string binary = bytesOf(
    "62706c6973743030d50102030405060708090a594b656570416c697665554c6162656c544e6963655750726f6772616d"
    "5f101050726f6772616d417267756d656e7473095f1011636f6d2e6578616d706c652e6167656e7410055a2f6f70742f"
    "6167656e74a30b0c0d5a2f62696e2f6167656e74522d766400fc00620065007208131d2328304344585a656974770000"
    "000000000101000000000000000e00000000000000000000000000000080");

const std::string sameInXml = xmlDictionary(
    "<key>KeepAlive</key><true/><key>Label</key><string>com.example.agent</string><key>Nice</key><integer>5</integer>"
    "<key>Program</key><string>/opt/agent</string><key>ProgramArguments</key><array><string>/bin/agent</string>"
    "<string>-v</string><string>über</string></array>");

/// Writes binary property lists whose objects may refer to each other in any way.
class BinaryWriter {
public:
    void text(const std::string& ascii) { add(marked(0x5, ascii.size()) + ascii); }
    /// With a length that need not be true.
    void data(std::size_t length, const std::string& content) { add(marked(0x4, length) + content); }
    void list(const std::vector<std::size_t>& items) { container(0xA, items); }
    /// Of one of the kinds whose content is references.
    void container(unsigned kind, const std::vector<std::size_t>& items) {
        add(marked(kind, items.size()) + references(items));
    }
    /// With so many units of two bytes; the number need not be true.
    void wideText(std::size_t length, const std::string& content) { add(marked(0x6, length) + content); }
    void dictionary(const std::vector<std::size_t>& keys, const std::vector<std::size_t>& values) {
        add(marked(0xD, keys.size()) + references(keys) + references(values));
    }

    /// The whole file; the object at `top` is the first.
    std::string file(std::size_t top = 0) const {
        std::string bytes = "bplist00";
        std::string places;
        for (const std::string& object : objects_) {
            places += number(bytes.size(), 4);
            bytes += object;
        }
        const std::size_t table = bytes.size();
        return bytes + places + std::string(6, '\0') + '\4' + '\4' + number(objects_.size(), 8) + number(top, 8) +
               number(table, 8);
    }

private:
    static std::string number(std::size_t value, std::size_t width) {
        std::string bytes(width, '\0');
        for (std::size_t at = width; at-- > 0; value >>= 8) bytes[at] = static_cast<char>(value & 0xFF);
        return bytes;
    }
    static std::string marked(unsigned kind, std::size_t length) {
        if (length < 15) return std::string(1, static_cast<char>(kind << 4 | length));
        return std::string(1, static_cast<char>(kind << 4 | 15)) + '\x12' + number(length, 4);
    }
    static std::string references(const std::vector<std::size_t>& items) {
        std::string bytes;
        for (const std::size_t item : items) bytes += number(item, 4);
        return bytes;
    }
    void add(const std::string& object) { objects_.push_back(object); }

    std::vector<std::string> objects_;
};

TEST(PropertyList, readsBothForms) {
    for (const std::string& bytes : {binary, sameInXml}) {
        const auto list = PropertyList::parse(bytes);
        ASSERT_TRUE(list);
        EXPECT_THAT(list->text("Label"), Optional(std::string("com.example.agent")));
        EXPECT_THAT(list->text("Program"), Optional(std::string("/opt/agent")));
        EXPECT_THAT(list->texts("ProgramArguments"), Optional(ElementsAre("/bin/agent", "-v", "über")));
    }
}

TEST(PropertyList, valueOfAnotherTypeIsAbsent) {
    for (const std::string& bytes : {binary, sameInXml}) {
        const auto list = PropertyList::parse(bytes);
        ASSERT_TRUE(list);
        for (const char* key : {"KeepAlive", "Nice", "ProgramArguments", "label", "Nothing", ""})
            EXPECT_FALSE(list->text(key)) << key;
        for (const char* key : {"KeepAlive", "Nice", "Label", "Nothing", ""}) EXPECT_FALSE(list->texts(key)) << key;
    }
}

TEST(PropertyList, listMayBeEmptyButHoldsTextsOnly) {
    const auto list = PropertyList::parse(
        xmlDictionary("<key>none</key><array/><key>mixed</key><array><string>a</string><integer>1</integer></array>"
                      "<key>deep</key><array><array><string>a</string></array></array>"));
    ASSERT_TRUE(list);
    EXPECT_THAT(list->texts("none"), Optional(IsEmpty()));
    EXPECT_FALSE(list->texts("mixed"));
    EXPECT_FALSE(list->texts("deep"));
}

TEST(PropertyList, textMayBeEmpty) {
    const auto list = PropertyList::parse(xmlDictionary("<key>Label</key><string></string>"));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->text("Label"), "");
}

TEST(PropertyList, decodesEntitiesAndCharacterData) {
    const auto list = PropertyList::parse(
        xmlDictionary("<key>a</key><string>x &amp; &lt;y&gt;</string><key>b</key><string><![CDATA[<z>]]></string>"));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->text("a"), "x & <y>");
    EXPECT_EQ(list->text("b"), "<z>");
}

TEST(PropertyList, topOfAnotherTypeIsAbsent) {
    EXPECT_FALSE(PropertyList::parse(xml("<array><string>a</string></array>")));
    EXPECT_FALSE(PropertyList::parse(xml("<string>a</string>")));
    EXPECT_FALSE(PropertyList::parse(xml("")));
    BinaryWriter list;
    list.list({1});
    list.text("a");
    EXPECT_FALSE(PropertyList::parse(list.file()));
    BinaryWriter text;
    text.text("a");
    EXPECT_FALSE(PropertyList::parse(text.file()));
}

TEST(PropertyList, anythingElseIsAbsent) {
    for (const std::string& bytes : {std::string(), std::string("bplist00"), std::string("plain"), std::string("{}"),
                                     std::string("<dict>"), std::string("<html><body/></html>"), std::string(400, '\0'),
                                     "bplist00" + std::string(400, '\xff'), std::string("bplist15") + binary.substr(8)})
        EXPECT_FALSE(PropertyList::parse(bytes) && PropertyList::parse(bytes)->text("Label")) << bytes.substr(0, 20);
}

TEST(PropertyList, survivesEveryTruncationAndFlippedByte) {
    for (const std::string& whole : {binary, sameInXml}) {
        for (std::size_t length = 0; length < whole.size(); ++length) {
            const auto list = PropertyList::parse(whole.substr(0, length));
            EXPECT_TRUE(!list || isUtf8(list->text("Label").value_or(""))) << length;
        }
        for (std::size_t at = 0; at < whole.size(); ++at) {
            for (const char value : {'\0', '\x7f', '\xff', static_cast<char>(whole[at] ^ 1)}) {
                std::string bytes = whole;
                bytes[at] = value;
                const auto list = PropertyList::parse(bytes);
                EXPECT_TRUE(!list || isUtf8(list->text("Label").value_or(""))) << at;
            }
        }
    }
}

TEST(PropertyList, duplicateKeyHasOneOfItsValues) {
    const auto list =
        PropertyList::parse(xmlDictionary("<key>a</key><string>one</string><key>a</key><string>two</string>"));
    if (!list) return;
    EXPECT_THAT(list->text("a"), Optional(AnyOf(std::string("one"), std::string("two"))));
}

TEST(PropertyList, textThatIsNotUtf8IsAbsent) {
    const auto list = PropertyList::parse(
        xmlDictionary("<key>bad</key><string>a\xff</string><key>list</key><array><string>\xc3</string></array>"
                      "<key>good</key><string>b</string>"));
    if (!list) return;
    EXPECT_FALSE(list->text("bad"));
    EXPECT_FALSE(list->texts("list"));
    EXPECT_EQ(list->text("good"), "b");
}

TEST(PropertyList, tooLargeOneIsAbsent) {
    std::string bytes = xmlDictionary("<key>Label</key><string>a</string>");
    bytes.resize(largestPropertyList, '\n');
    EXPECT_TRUE(PropertyList::parse(bytes));
    EXPECT_FALSE(PropertyList::parse(bytes + '\n'));
}

TEST(PropertyList, tooDeepXmlIsAbsent) {
    const auto nested = [](std::size_t depth) {
        std::string text = "<key>a</key>";
        for (std::size_t level = 0; level < depth; ++level) text += "<array>";
        for (std::size_t level = 0; level < depth; ++level) text += "</array>";
        return xmlDictionary(text + "<key>Label</key><string>x</string>");
    };
    EXPECT_TRUE(PropertyList::parse(nested(63)));
    EXPECT_FALSE(PropertyList::parse(nested(64)));
    EXPECT_FALSE(PropertyList::parse(nested(50'000)));
}

TEST(PropertyList, closingTagsThatAreNoTagsDoNotHideDepth) {
    for (const char* disguise :
         {"<!-- </array> -->", "<![CDATA[</array>]]>", "<? </array> ?>", "<x y=\"</array>\"/>", "<?x \"?></array>\" ?>",
          "<!DOCTYPE x [<y></array>]>", "<!DOCTYPE x SYSTEM \"</array>\">"}) {
        std::string text;
        for (int level = 0; level < 100; ++level) text += std::string("<array>") + disguise;
        EXPECT_FALSE(isModestPropertyList(xml(text))) << disguise;
    }
}

TEST(PropertyList, textAfterAnInstructionCounts) {
    // Where an instruction ends is the same with quotes and without.
    for (const char* instruction : {"<?x?>", "<?>", "<? \"?>\" ?>", "<? \"\" ?>"}) {
        std::string text;
        for (int level = 0; level < 60; ++level) text += "<array>" + std::string(instruction);
        EXPECT_TRUE(isModestPropertyList(text)) << instruction;
        EXPECT_FALSE(isModestPropertyList(text + text)) << instruction;
    }
}

TEST(PropertyList, documentTypeWithDefinitionsIsAbsent) {
    EXPECT_TRUE(isModestPropertyList("<!DOCTYPE plist><plist><dict/></plist>"));
    EXPECT_FALSE(isModestPropertyList("<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><dict/></plist>"));
    // A bracket elsewhere is none of its business.
    EXPECT_TRUE(PropertyList::parse(xmlDictionary("<key>[</key><string>]</string>")));
}

TEST(PropertyList, manyContainersBesideEachOtherAreTooMany) {
    const auto flat = [](int count) {
        std::string text = "<array>";
        for (int item = 1; item < count; ++item) text += "<dict/>";
        return xml(text + "</array>");
    };
    EXPECT_TRUE(isModestPropertyList(flat(10'000)));
    EXPECT_FALSE(isModestPropertyList(flat(10'001)));
}

TEST(PropertyList, commentedTagsCountForNothing) {
    std::string text;
    for (int item = 0; item < 1'000; ++item) text += "<!-- <array> -->";
    EXPECT_TRUE(PropertyList::parse(xmlDictionary(text + "<key>Label</key><string>x</string>")));
}

TEST(PropertyList, tooDeepBinaryIsAbsent) {
    const auto nested = [](std::size_t depth) {
        BinaryWriter writer;
        writer.dictionary({1}, {2});
        writer.text("a");
        for (std::size_t level = 1; level < depth; ++level) writer.list({level + 2});
        writer.text("end");
        return writer.file();
    };
    EXPECT_TRUE(PropertyList::parse(nested(64)));
    EXPECT_FALSE(PropertyList::parse(nested(65)));
    EXPECT_FALSE(PropertyList::parse(nested(50'000)));
}

TEST(PropertyList, everyKindOfContainerHasDepth) {
    for (const unsigned kind : {0xAU, 0xBU, 0xCU}) {
        const auto nested = [kind](std::size_t depth) {
            BinaryWriter writer;
            for (std::size_t level = 1; level <= depth; ++level) writer.container(kind, {level});
            writer.text("end");
            return writer.file();
        };
        EXPECT_TRUE(isModestPropertyList(nested(64))) << kind;
        EXPECT_FALSE(isModestPropertyList(nested(65))) << kind;
    }
}

TEST(PropertyList, wideTextTakesTwoBytesAUnit) {
    const auto withUnits = [](std::size_t units) {
        BinaryWriter writer;
        writer.dictionary({1}, {2});
        writer.text("a");
        writer.wideText(units, std::string(1'000, 'x'));
        return writer.file();
    };
    EXPECT_TRUE(isModestPropertyList(withUnits(500)));
    EXPECT_FALSE(isModestPropertyList(withUnits(1'000))) << "beyond the end of the file";
    // Copies count by bytes: 100 of them are 10 MB, 200 are 20 MB.
    const auto copies = [](std::size_t count) {
        BinaryWriter writer;
        writer.list(std::vector<std::size_t>(count, 1));
        writer.wideText(50'000, std::string(100'000, 'x'));
        return writer.file();
    };
    EXPECT_TRUE(isModestPropertyList(copies(100)));
    EXPECT_FALSE(isModestPropertyList(copies(200)));
}

TEST(PropertyList, objectThatContainsItselfIsAbsent) {
    BinaryWriter own;
    own.dictionary({1}, {0});
    own.text("a");
    EXPECT_FALSE(PropertyList::parse(own.file()));
    BinaryWriter both;
    both.dictionary({1}, {2});
    both.text("a");
    both.list({3});
    both.list({2});
    EXPECT_FALSE(PropertyList::parse(both.file()));
}

/// Every list refers to the next one ten times.
TEST(PropertyList, smallFileOfManyCopiesIsAbsent) {
    BinaryWriter writer;
    writer.dictionary({1}, {2});
    writer.text("a");
    for (std::size_t level = 2; level < 12; ++level) writer.list(std::vector<std::size_t>(10, level + 1));
    writer.text("end");
    EXPECT_LT(writer.file().size(), 1'000U);
    EXPECT_FALSE(PropertyList::parse(writer.file()));
}

TEST(PropertyList, copiesOfLongTextAreAbsent) {
    BinaryWriter writer;
    writer.dictionary({1}, {2});
    writer.text("a");
    writer.list(std::vector<std::size_t>(1'000, 3));
    writer.text(std::string(100'000, 'x'));
    EXPECT_FALSE(PropertyList::parse(writer.file()));
    BinaryWriter few;
    few.dictionary({1}, {2});
    few.text("a");
    few.list({3, 3});
    few.text(std::string(100'000, 'x'));
    const auto list = PropertyList::parse(few.file());
    ASSERT_TRUE(list);
    EXPECT_EQ(list->texts("a").value_or(std::vector<std::string>()).size(), 2U);
}

TEST(PropertyList, placesOutsideTheFileAreAbsent) {
    BinaryWriter far;
    far.dictionary({1}, {9});
    far.text("a");
    EXPECT_FALSE(PropertyList::parse(far.file()));
    EXPECT_FALSE(PropertyList::parse(far.file(7)));
    BinaryWriter longData;
    longData.dictionary({1}, {2});
    longData.text("a");
    longData.data(1'000'000, "short");
    EXPECT_FALSE(PropertyList::parse(longData.file()));
}

}  // namespace
}  // namespace zelk
