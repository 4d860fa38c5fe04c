// The one reader of number text and the one table of error texts, as the settings readers and
// the macro language both see them.
#include <gtest/gtest.h>

#include "extend/vbscript/convert.h"
#include "platform/errors.h"
#include "platform/number_text.h"
#include "platform/vb_convert.h"

namespace lathwick {
namespace {

TEST(NumberText, ReadsDecimalFormsAndHexAndOctalAsSignedWords) {
  const std::pair<const char*, double> rows[] = {
      {" 12 ", 12},      {"-1.5", -1.5}, {"+.5", 0.5},     {"5.", 5},           {"1E3", 1000},
      {"1D2", 100},      {"2.5d-1", 0.25}, {"&HFFFF", -1}, {"&hff", 255},       {"&H0FFFF", 65535},
      {"&HFFFFFFFF", -1}, {"&O177777", -1}, {"&17", 15}};
  for (const auto& [text, value] : rows) EXPECT_EQ(parseNumberText(text), value) << text;
}

TEST(NumberText, RefusesWhatIsNotANumber) {
  for (const char* t : {"", "  ", "abc", "1E", "1E+", ".", "-", "1.2.3", "12abc", "&H", "&HG",
                        "&O8", "&H100000000", "inf", "nan", "0x10", "1E999"})
    EXPECT_FALSE(parseNumberText(t).has_value()) << t;
}

TEST(NumberText, SettingsReadersAndMacrosAgree) {
  EXPECT_EQ(toInt16("&HFFFF"), -1);
  EXPECT_EQ(toInt16("1D2"), 100);
  EXPECT_EQ(toDouble(" 2.5 "), 2.5);
  EXPECT_TRUE(toBool("&H1"));
  try {
    toInt16("x1");
    FAIL() << "not a number";
  } catch (const AppError& e) {
    EXPECT_EQ(e.number(), 13);
    EXPECT_EQ(e.description(), "Type mismatch");
  }
  EXPECT_THROW(toInt16("1D5"), AppError);  // 100000 overflows a 16-bit value
}

TEST(ErrorTexts, ConstantsCarryTheirOwnTextsAndUnknownNumbersAFallback) {
  EXPECT_EQ(makeError(err::kBadFileNameOrNumber).description(), "Bad file name or number");
  EXPECT_EQ(makeError(err::kBadFileName).description(), "Bad file name");
  EXPECT_EQ(makeError(err::kPathFileAccessError).description(), "Path/File access error");
  EXPECT_EQ(errorText(err::kObjectDoesntSupportThisPropertyOrMethod),
            "Object doesn't support this property or method");
  EXPECT_EQ(errorText(err::kWrongNumberOfArguments),
            "Wrong number of arguments or invalid property assignment");
  EXPECT_EQ(errorText(err::kOutOfStringSpace), "Out of string space");
  EXPECT_EQ(errorText(1041), "Name redefined");
  EXPECT_FALSE(isKnownError(12345));
  EXPECT_EQ(errorText(12345), "Unknown runtime error");
  EXPECT_EQ(makeError(12345).description(), "Application-defined or object-defined error");
  // 64 is the program's own: the macro language does not know it.
  EXPECT_FALSE(isKnownError(err::kBadFileName));
  EXPECT_EQ(errorText(err::kBadFileName), "Unknown runtime error");
}

}  // namespace
}  // namespace lathwick
