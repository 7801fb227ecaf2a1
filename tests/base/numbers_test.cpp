// Number forms, rounding and narrow stores.
#include "base/numbers.h"

#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <locale>
#include <tuple>
#include <vector>

#include "base/random_series.h"
#include "base/text_writer.h"
#include "support/harness.h"

namespace pelorium {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

template <typename Form>
std::string Forms(Form form, const std::vector<double>& values) {
  std::string forms;
  for (const double value : values) forms += form(value) + '|';
  return forms;
}

TEST(Numbers, GeneralForm) {
  EXPECT_EQ(Forms(GeneralForm, {0.0, -0.0, 0.1 + 0.2, 1.0 / 3, 2.0 / 3, 999999999999999.0}),
            "0|0|0.3|0.333333333333333|0.666666666666667|999999999999999|");
  EXPECT_EQ(Forms(GeneralForm, {999999999999999.875, 1e15, -1234567890123456.0, 100000000000000.5}),
            "1E+15|1E+15|-1.23456789012346E+15|100000000000000|");
  EXPECT_EQ(Forms(GeneralForm, {-1.25e-14, 1.5e-16, kLargest, std::numeric_limits<double>::denorm_min()}),
            "-0.0000000000000125|1.5E-16|1.79769313486232E+308|4.94065645841247E-324|");
  for (const double value : {kNaN, kInfinity, -kInfinity}) {
    EXPECT_TRUE(Raises(FaultKind::BadNumber, [&] { GeneralForm(value); }));
    EXPECT_TRUE(Raises(FaultKind::BadNumber, [&] { RoundedForm(value, 2); }));
  }
}

// Ties are those of value * 10^decimals as a double: 2.675 * 100 is 267.5 and goes to the even 268.
// Against the plain way: 15 digits asked of the library. Halves, carries, small and large numbers, and
// chance.
TEST(Numbers, GeneralFormRoundsTheNumberItself) {
  std::vector<double> values = {0.1 + 0.2,
                                1.0 / 3,
                                999999999999999.5,
                                99999999.99999995,
                                0.00999999999999999967,
                                1125899906842624.5,
                                281474976710656.125,
                                2.2250738585072014e-308,
                                5e-324,
                                1e-310};
  RandomSeries random;
  for (int i = 0; i < 20000; ++i) {
    const double value = random.Next() * std::pow(10.0, i % 30 - 12);
    values.insert(values.end(), {value, -value, value / 3, std::nearbyint(value * 1000) / 1000});
  }
  for (const double value : values) {
    char plain[40];
    std::snprintf(plain, sizeof plain, "%.14e", value);
    ASSERT_EQ(WholeNumber(GeneralForm(value)), WholeNumber(plain)) << plain;
  }
}

TEST(Numbers, RoundedForm) {
  const std::tuple<int, std::vector<double>, const char*> table[] = {
      {0, {2.5, 1.5, -0.5}, "2|2|0|"},
      {1, {100.05}, "100|"},
      {2, {2.675, 2.665, 0.125, -0.375, -0.004, -0.0}, "2.68|2.66|0.12|-0.38|0|0|"},
      {2, {1234567890123.25, 12345678901234.56, 1e15}, "1234567890123.25|12345678901234.6|1E+15|"},
      {3, {-7.0625, 12.3, 10}, "-7.062|12.3|10|"},
      {9, {1e300, 0.000000001}, "1E+300|0.000000001|"}};
  for (const auto& [decimals, values, text] : table) {
    EXPECT_EQ(Forms([places = decimals](double value) { return RoundedForm(value, places); }, values), text);
    EXPECT_EQ(
        Forms([places = decimals](double value) { return GeneralForm(RoundTo(value, places)); }, values),
        text);
  }
  EXPECT_FALSE(std::signbit(RoundTo(-0.004, 2)));
  EXPECT_EQ(RoundTo(4503599627370497.0, 0), 4503599627370497.0);
  EXPECT_TRUE(std::isnan(RoundTo(kNaN, 2)));
}

TEST(Numbers, OtherForms) {
  EXPECT_EQ(Forms(PrintForm, {0.25, -0.5, -0.0, 1e15}), " 0.25 |-0.5 | 0 | 1E+15 |");
  const auto shortest = [](double value) { return ShortestForm(value); };
  EXPECT_EQ(Forms(shortest, {1.0 / 3, 0.1 + 0.2, -2500.0, -0.0, 1e22, kNaN, -kInfinity}),
            "0.3333333333333333|0.30000000000000004|-2500|0|1E+22|nan|-inf|");
  EXPECT_EQ(ShortestForm(0.1F), "0.1");
}

TEST(Numbers, ValTakesTheLongestLeadingNumber) {
  const std::pair<const char*, double> table[] = {
      {"", 0},        {"   ", 0},         {"abc", 0},  {"-", 0},      {".", 0},     {"+.e1", 0},
      {"nan", 0},     {"inf", 0},         {"0x10", 0}, {"12abc", 12}, {"\t 7", 7},  {"1 2", 1},
      {"1,5", 1},     {"1e", 1},          {"1e+", 1},  {"1D3", 1000}, {".5", 0.5},  {"5.", 5},
      {"1.2.3", 1.2}, {" -3.5e2x", -350}, {"+4", 4},   {"1e-400", 0}, {"1e400", 0}, {"-1e999x", 0},
  };
  for (const auto& [text, value] : table) EXPECT_EQ(Val(text), value) << text;
  EXPECT_EQ(LeadingNumber(" 2.5x"), 2.5);
  EXPECT_EQ(LeadingNumber("\t"), 0);
  EXPECT_TRUE(Raises(FaultKind::Overflow, [] { LeadingNumber("1e999"); }));
}

TEST(Numbers, WholeNumber) {
  const std::string zeros(400, '0');
  const std::pair<std::string, double> good[] = {
      {"+1d-2", 0.01},
      {"-.5", -0.5},
      {"1E+5", 1e5},
      {"1e-400", 0},
      {"-1e-400", 0},
      {"1" + zeros + "e-390", 1e10},
      {"0." + zeros + "1", 0},
      {"0." + zeros + "1e+5", 0},
      {"0." + zeros + "1e401", 1},
      {"0e99999999999999999999", 0},
      {"1e-99999999999999999999", 0},
      {"-" + GeneralForm(-kLargest).substr(1), -kLargest},  // 15 digits, and above the largest number
      {GeneralForm(kLargest), kLargest}};
  for (const auto& [text, value] : good) EXPECT_EQ(WholeNumber(text), value) << text;

  EXPECT_TRUE(Raises(FaultKind::BadNumber, [] { WholeNumber({"1\0005", 3}); }));
  for (const char* text : {"", " 1", "1 ", "1e", "1e+", "nan", "inf", "0x10", "1.2.3", "--1", "+-1", "1,5",
                           "e5", ".", "-", "1e5."}) {
    EXPECT_TRUE(Raises(FaultKind::BadNumber, [&] { WholeNumber(text); })) << text;
  }
  for (const std::string& text : {std::string("1e309"), std::string("-1e309"), "1" + zeros,
                                  "1" + zeros + "e-50", std::string("1e99999999999999999999")}) {
    EXPECT_TRUE(Raises(FaultKind::Overflow, [&] { WholeNumber(text); })) << text;
  }
}

template <typename Field>
bool Overflows(double value) {
  return bool(Raises(FaultKind::Overflow, [&] { ToInteger<Field>(value); }));
}

TEST(Numbers, IntegerFieldsRoundHalfToEvenAndHoldTheirRange) {
  EXPECT_EQ(ToInteger<int>(2.5), 2);
  EXPECT_EQ(ToInteger<int>(-2.5), -2);
  EXPECT_EQ(ToInteger<std::int16_t>(32767.4), 32767);
  EXPECT_EQ(ToInteger<std::int16_t>(-32768.5), -32768);
  EXPECT_EQ(ToInteger<std::uint8_t>(-0.5), 0);
  EXPECT_EQ(ToInteger<std::int64_t>(-0x1p63), std::numeric_limits<std::int64_t>::min());
  EXPECT_TRUE(Overflows<std::int16_t>(32767.5));
  EXPECT_TRUE(Overflows<std::int16_t>(-32768.51));
  EXPECT_TRUE(Overflows<std::int64_t>(0x1p63));
  EXPECT_TRUE(Overflows<int>(kNaN));
  EXPECT_TRUE(Overflows<int>(kInfinity));
  EXPECT_EQ(Narrow<std::int16_t>(-32768), -32768);
  EXPECT_TRUE(Raises(FaultKind::Overflow, [] { Narrow<std::int16_t>(32768); }));
  EXPECT_TRUE(Raises(FaultKind::Overflow, [] { Narrow<std::uint8_t>(-1); }));
}

// Sets a locale with a decimal comma, and the old one again.
class CommaLocale {
 public:
  bool Set() {
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) return false;
    std::locale::global(std::locale("de_DE.UTF-8"));
    return std::localeconv()->decimal_point == std::string(",");
  }
  ~CommaLocale() { std::locale::global(std::locale::classic()); }
};

TEST(Numbers, APointInALocaleWithACommaToo) {
  CommaLocale comma;
  if (!comma.Set()) GTEST_SKIP() << "the locale de_DE.UTF-8 is not to be had here";
  EXPECT_EQ(GeneralForm(1234.5), "1234.5");
  EXPECT_EQ(RoundedForm(1234.567, 2), "1234.57");
  EXPECT_EQ(ShortestForm(0.1), "0.1");
  EXPECT_EQ(Val("1.5"), 1.5);
  EXPECT_EQ(WholeNumber("-2.25D1"), -22.5);
  StringSink sink;
  TextWriter writer(sink);
  writer.General(0.5).Integer(1000000).Print(1.5).Flush();
  EXPECT_EQ(sink.text(), "0.51000000 1.5 ");
}

}  // namespace
}  // namespace pelorium
