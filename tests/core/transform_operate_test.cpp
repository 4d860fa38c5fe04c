// Operate: validation order and texts, the word operation, the comment acceptance rule, the
// markers, and the numeric picture.
#include <gtest/gtest.h>

#include "marker_frame.h"
#include "platform/errors.h"
#include "support/temp_dir.h"
#include "transform/numeric_picture.h"
#include "transform/operate.h"
#include "transform/rich_text_escape.h"

#include <cmath>
#include <cstdint>
#include <vector>

using namespace lathwick::transform;
using lathwick::PassOutcome;
using lathwick::PassFrame;

namespace {
PassFrame frame() { return lathwick::test::markerFrame("H", "T"); }

std::string operated(const std::string& raw, const std::string& addresses, char op, double operand,
                     const std::string& format = "##0.0###", bool exclude = false, long* count = nullptr) {
  OperateRequest req;
  req.addresses = addresses;
  req.op = op;
  req.operand = operand;
  req.format = format;
  req.excludeComments = exclude;
  OperateLine o(req, frame());
  std::string line = escapeRichText(raw);
  const long n = o.apply(raw, line);
  if (count) *count = n;
  return line;
}

std::string pic(double v, const char* picture) { return NumericPicture(picture).format(v); }
}  // namespace

TEST(NumericPicture, FormatsByThePicture) {
  // Zeros are always shown, hashes only when significant; halves round away from zero after
  // fifteen significant digits; a minus only when the number shown is not zero.
  const struct { double value; const char* picture; const char* shown; } rows[] = {
      {15, "##0.0###", "15.0"}, {0.25, "##0.0###", "0.25"}, {0, "##0.0###", "0.0"}, {0.5, "#.##", ".5"},
      {5, "000", "005"}, {5, "#00", "05"}, {12345, "0", "12345"}, {1.5, "0.000", "1.500"}, {15, "0.", "15."},
      {1.25, "0.#0#", "1.25"}, {1.2, "0.#0#", "1.20"}, {2.5, "0", "3"}, {-2.5, "0", "-3"}, {0.125, "0.00", "0.13"},
      {2.675, "0.00", "2.68"},  // 2.67499999... in binary, 2.675 in 15 digits
      {0.1 * 3, "0.0################", "0.3"}, {9.9996, "0.000", "10.000"}, {0.0004, "#.###", "."},
      {0.0005, "0.000", "0.001"}, {1e20, "0", "100000000000000000000"}, {-0.5, "##0.0###", "-0.5"},
      {-0.00001, "0.0", "0.0"}, {-0.0, "0", "0"}, {-1234.56789, "0.00", "-1234.57"}};
  for (const auto& r : rows) EXPECT_EQ(pic(r.value, r.picture), r.shown) << r.value << " as " << r.picture;
}

TEST(NumericPicture, AcceptsOnlyZeroHashAndOnePoint) {
  EXPECT_TRUE(NumericPicture::isValid("##0.0###"));
  EXPECT_TRUE(NumericPicture::isValid(""));
  EXPECT_FALSE(NumericPicture::isValid("0.0.0"));
  EXPECT_FALSE(NumericPicture::isValid("#,##0"));
  EXPECT_THROW(NumericPicture("0E+0"), lathwick::AppError);
}

TEST(Operate, ValidationOrderAndTexts) {
  EXPECT_EQ(validateOperate({"XYZ", "/", "0", "0.0"}).message, "Division by zero not allowed");
  EXPECT_TRUE(validateOperate({"XYZ", "/", "0", "0.0"}).resetOperator);
  EXPECT_EQ(validateOperate({"", "/", "", ""}).message, "Division by zero not allowed");  // first check wins
  EXPECT_EQ(validateOperate({"", "*", "", ""}).message, "Value is required.");
  EXPECT_EQ(validateOperate({"", "*", "2", ""}).message, "Address is required.");
  EXPECT_EQ(validateOperate({"X", "*", "2", ""}).message, "Format is required.");
  EXPECT_EQ(validateOperate({"X", "/", "0.5", "0"}).message, "");
  EXPECT_FALSE(validateOperate({"X", "/", "0.5", "0"}).resetOperator);
}

TEST(Operate, ReadsTheLeadingNumberOfAValueShortOrLong) {
  const std::pair<const char*, double> rows[] = {{"1.5/2", 1.5}, {"+5", 5}, {"-", 0},  {"-.5", -0.5},
                                                 {"5.", 5},      {"1-2", 1}, {"--5", 0}};
  for (const auto& [text, value] : rows) EXPECT_EQ(leadingValue(text), value) << text;
}

TEST(Operate, TheWordOperationOnOneLine) {
  const struct { const char *raw, *addresses; char op; double operand; const char* format; bool exclude;
                 const char* line; long count; } rows[] = {
      // Every chosen address is scaled and its new value marked; a stepped-over "/2" goes too.
      {"X10 Y-2.5 Z.1", "XYZ", '*', 2, "##0.0###", false, "X<20.0> Y<-5.0> Z<0.2>", 3},
      {"X-1", "X", '+', 0.5, "##0.0###", false, "X<-0.5>", 1},
      {"X+5", "X", '-', 1, "##0.0###", false, "X<4.0>", 1},
      {"X6 X8", "X", '/', 4, "##0.0###", false, "X<1.5> X<2.0>", 2},
      {"X1.5/2,Y", "X", '*', 1, "##0.0###", false, "X<1.5>,Y", 1},
      // Lone letters, lower case and other letters are left alone.
      {"X G01 x5 X", "X", '*', 2, "0", false, "X G01 x5 X", 0},
      {"G01 X1 F100", "XY", '*', 2, "0", false, "G01 X<2> F100", 1},
      // X comes first in the addresses but last in the line; Y's longer value moves it right.
      {"Y1 X1", "XY", '*', 10, "0.000", false, "Y<10.000> X<10.000>", 2},
      // A letter given twice works on its value twice under one mark (0.09, then 0.0009).
      {"X9", "XX", '/', 100, "0.##", false, "X<0.>", 2},
      {"X1.25", "XX", '+', 0.25, "0.##", false, "X<1.75>", 2},
      // Another letter in between, values growing and shrinking around the one changed twice.
      {"Y1 X1", "XYX", '*', 10, "0.000", false, "Y<10.000> X<100.000>", 3},
      {"X100 Y1 X200", "XYX", '/', 10, "0", false, "X<1> Y<0> X<2>", 5},
      {"X1 Y2 X", "XXX", '+', 1, "0", false, "X<4> Y2 X", 3},
      // A complete comment blocks the whole line when comments are excluded; an opening
      // delimiter without a closing one does not block the letters before it.
      {"G01 X1 (MOVE X)", "X", '*', 2, "0", true, "G01 X1 (MOVE X)", 0},
      {"G01 X1 (MOVE X2", "X", '*', 2, "0", true, "G01 X<2> (MOVE X2", 1},
      {"G01 X1 (MOVE X2)", "X", '*', 2, "0", false, "G01 X<2> (MOVE X<4>)", 2}};
  for (const auto& r : rows) {
    long n = -1;
    EXPECT_EQ(operated(r.raw, r.addresses, r.op, r.operand, r.format, r.exclude, &n), r.line) << r.raw;
    EXPECT_EQ(n, r.count) << r.raw;
  }
}

TEST(Operate, PassCountsOperationsAndOverflowFailsTheOperation) {
  lathwick::test::TempDir dir;
  OperateRequest req;
  req.operand = 2;
  auto r = runOperate(dir.write("in.txt", "X10 Y-2.5 Z.1\r\nM30\r\n"), dir.file("out.rtf"), req, frame(),
                      lathwick::silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Completed);
  EXPECT_EQ(r.statusLabel, "3 Operations made.");
  EXPECT_EQ(dir.read("out.rtf"), "H\r\n\\li0 X<20.0> Y<-5.0> Z<0.2>\r\n\\par\\li0 M30\r\nT\r\n");

  // A doubled letter: one mark per value, every operation counted.
  req.addresses = "XX";
  req.op = '+';
  req.operand = 0.25;
  req.format = "0.##";
  r = runOperate(dir.write("twice.txt", "X1.25\r\n"), dir.file("twice.rtf"), req, frame(),
                 lathwick::silentMonitor());
  EXPECT_EQ(r.statusLabel, "2 Operations made.");
  EXPECT_EQ(dir.read("twice.rtf"), "H\r\n\\li0 X<1.75>\r\nT\r\n");

  req = OperateRequest{};
  req.operand = 1e300;
  r = runOperate(dir.write("big.txt", "X1" + std::string(20, '9') + "\r\n"), dir.file("big.rtf"), req, frame(),
                 lathwick::silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Failed);
  EXPECT_EQ(r.message, "The error 6 Overflow occurred during the operation.");
  EXPECT_FALSE(std::filesystem::exists(dir.file("big.rtf")));
}

TEST(NumericPicture, QuickDigitsAgreeWithTheExactOnesOrDecline) {
  // Values as programs hold them, and values built to sit on rounding ties and powers of ten.
  std::vector<double> values = {1e-5, 0.1, 0.3, 1, 9.99999999999999, 10, 99.99999999999995, 123456789012345,
                                999999999999999.4, 2.675, 0.125, 1.0000000000000002, 5e-5};
  std::uint64_t seed = 88172645463325252ULL;
  for (int i = 0; i < 200000; ++i) {
    seed ^= seed << 13, seed ^= seed >> 7, seed ^= seed << 17;
    const double unit = static_cast<double>(seed >> 11) / 9007199254740992.0;
    values.push_back(unit * std::pow(10.0, static_cast<int>(seed % 21) - 6));
    values.push_back(static_cast<double>(seed % 2000000) / 1000.0 * 2);  // scaled program values
  }
  int quick = 0;
  for (const double v : values) {
    if (v == 0) continue;
    DecimalDigits a, b;
    exactDecimalDigits(v, b);
    if (!quickDecimalDigits(v, a)) continue;
    ++quick;
    ASSERT_EQ(std::string(a.digits, 15), std::string(b.digits, 15)) << v;
    ASSERT_EQ(a.pointPos, b.pointPos) << v;
  }
  EXPECT_GT(quick, 300000);  // the quick way answers nearly always
  EXPECT_EQ(leadingValue("0.1"), 0.1);
  EXPECT_EQ(leadingValue("123456789012.345"), 123456789012.345);
  EXPECT_EQ(leadingValue("1234567890123456789"), 1234567890123456789.0);
  EXPECT_EQ(leadingValue("0.00000000000000000001"), 1e-20);
  EXPECT_EQ(leadingValue("-2.675"), -2.675);
  EXPECT_EQ(leadingValue("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_THROW(leadingValue("1" + std::string(400, '0')), lathwick::AppError);
}

TEST(NumericPicture, QuickRouteAgreesWithTheDigitByDigitWay) {
  const char* pictures[] = {"##0.0###", "0", "#", "0.", "#.##", "000.000", "0.0##############", "#0.#0#", ".00"};
  std::uint64_t seed = 0x9E3779B97F4A7C15ULL;
  for (const char* text : pictures) {
    const NumericPicture picture(text);
    for (int i = 0; i < 20000; ++i) {
      seed ^= seed << 13, seed ^= seed >> 7, seed ^= seed << 17;
      const double unit = static_cast<double>(seed >> 11) / 9007199254740992.0;
      double v = unit * std::pow(10.0, static_cast<int>(seed % 22) - 7);
      if (seed & 1) v = -v;
      if (seed & 2) v = std::round(v * 1000) / 1000 + 0.0005;  // near the ties of 3 places
      ASSERT_EQ(picture.format(v), picture.formatByDigits(v)) << text << " " << v;
    }
  }
}
