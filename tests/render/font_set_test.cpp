#include "render/fonts/font_set.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace varnel::render {
namespace {

constexpr FontStyle kStyles[] = {FontStyle::kRegular, FontStyle::kBold, FontStyle::kItalic,
                                 FontStyle::kBoldItalic};

std::string ErrorOf(const std::filesystem::path& folder) {
    try {
        FontSet fonts(folder);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "no error";
}

TEST(FontSet, FiguresOfAStyleAreEquallyWide) {
    FontSet fonts;
    for (const FontStyle style : kStyles) {
        const std::int64_t zero = fonts.Advance(style, "0");
        EXPECT_GT(zero, 0);
        for (const char* digit : {"1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
            EXPECT_EQ(fonts.Advance(style, digit), zero) << digit;
        }
    }
}

TEST(FontSet, FormattingCharactersTakeNoRoomAndControlsAreSpaces) {
    FontSet fonts;
    const auto width = [&](std::string_view text) {
        return fonts.Advance(FontStyle::kRegular, text);
    };
    EXPECT_EQ(width("a\u00ADb\u200E"), width("ab"));
    EXPECT_EQ(width("a\tb\n"), width("a b "));
}

TEST(FontSet, NamesMissingFileAndPackage) {
    using testing::AllOf;
    using testing::HasSubstr;
    EXPECT_THAT(ErrorOf("/no-such-folder"), AllOf(HasSubstr("/no-such-folder/OpenSans-Regular.ttf"),
                                                  HasSubstr("fonts-open-sans")));
    ::setenv("VARNEL_FONT_DIR", "/nowhere", 1);
    EXPECT_THROW(FontSet(), std::runtime_error);
    ::unsetenv("VARNEL_FONT_DIR");
}

TEST(FontFace, RefusesAFileThatIsNoFont) {
    EXPECT_THROW(FontFace("/etc/passwd"), std::runtime_error);
    EXPECT_THROW(FontFace("/no-such-file.ttf"), std::runtime_error);
}

}  // namespace
}  // namespace varnel::render
