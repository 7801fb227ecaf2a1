// Number forms and rounding. Formatting goes through std::to_chars, which no locale reaches.
#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>

#include "base/fault.h"

namespace pelorium {

namespace {

constexpr int kGeneralDigits = 15;
constexpr double kWholeLimit = 4503599627370496.0;  // 2^52: from here on a double holds no fractions

constexpr std::array<double, 16> kPowersOfTen = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

void AppendWhole(std::string& text, std::int64_t value) {
  char digits[24];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  text.append(digits, end);
}

// Lays out significant digits d1d2d3... that stand for d1.d2d3... * 10^exponent.
void AppendLaidOut(std::string& text, bool negative, std::string_view digits, int exponent) {
  while (digits.size() > 1 && digits.back() == '0') digits.remove_suffix(1);
  if (negative) text += '-';
  if (exponent < -kGeneralDigits || exponent >= kGeneralDigits) {
    text += digits[0];
    if (digits.size() > 1) (text += '.') += digits.substr(1);
    text += exponent < 0 ? "E-" : "E+";
    AppendWhole(text, std::abs(exponent));
  } else if (exponent < 0) {
    text += "0.";
    text.append(static_cast<std::size_t>(-exponent - 1), '0') += digits;
  } else {
    const auto whole = static_cast<std::size_t>(exponent) + 1;
    text += digits.substr(0, whole);
    if (digits.size() < whole) text.append(whole - digits.size(), '0');
    if (digits.size() > whole) (text += '.') += digits.substr(whole);
  }
}

// What to_chars gives in scientific notation, "-d.ddde+xx", taken apart.
struct Digits {
  bool negative = false;
  std::size_t count = 0;
  char digits[32];
  int exponent = 0;

  std::string_view view() const { return {digits, count}; }
};

Digits TakeApart(std::string_view scientific) {
  Digits number;
  number.negative = scientific.front() == '-';
  if (number.negative) scientific.remove_prefix(1);
  const std::size_t e = scientific.find('e');
  for (const char c : scientific.substr(0, e)) {
    if (c != '.') number.digits[number.count++] = c;
  }
  const bool isBelowOne = scientific[e + 1] == '-';
  for (const char c : scientific.substr(e + 2)) number.exponent = number.exponent * 10 + (c - '0');
  if (isBelowOne) number.exponent = -number.exponent;
  return number;
}

void Append(std::string& text, const Digits& number) {
  AppendLaidOut(text, number.negative, number.view(), number.exponent);
}

// Rounds the shortest digits of a number to 15. They lie on the same side of every half as the number itself:
// a half between the two would be shorter, or nearer to the number. Only digits that are a half themselves do
// not tell, and those of the smallest numbers, which hold fewer than 15; false then.
bool RoundToGeneral(Digits& number, double value) {
  if (std::fabs(value) < std::numeric_limits<double>::min()) return false;
  constexpr std::size_t kKept = kGeneralDigits;
  if (number.count <= kKept) return true;
  if (number.count == kKept + 1 && number.digits[kKept] == '5') return false;
  const bool up = number.digits[kKept] >= '5';
  number.count = kKept;
  if (!up) return true;
  while (number.count > 0 && number.digits[number.count - 1] == '9') --number.count;
  if (number.count == 0) {
    number.digits[number.count++] = '1';
    ++number.exponent;
  } else {
    ++number.digits[number.count - 1];
  }
  return true;
}

template <typename Real>
Digits ShortestDigits(Real value) {
  char buffer[40];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific).ptr;
  return TakeApart({buffer, end});
}

template <typename Real>
std::string Shortest(Real value) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  std::string text;
  if (value == 0) return "0";
  Append(text, ShortestDigits(value));
  return text;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsExponentMark(char c) { return c == 'E' || c == 'e' || c == 'D' || c == 'd'; }

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

// Length of the number at the start of `text`, 0 if there is none. An exponent counts only with a digit in
// it.
std::size_t NumberLength(std::string_view text) {
  std::size_t at = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  const std::size_t whole = SkipDigits(text, at);
  std::size_t mantissaDigits = whole - at;
  at = whole;
  if (at < text.size() && text[at] == '.') {
    const std::size_t fraction = SkipDigits(text, at + 1);
    mantissaDigits += fraction - at - 1;
    at = fraction;
  }
  if (mantissaDigits == 0) return 0;
  if (at < text.size() && IsExponentMark(text[at])) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    const std::size_t end = SkipDigits(text, exponent);
    if (end > exponent) at = end;
  }
  return at;
}

// Of a number out of a double's range: whether it is too small rather than too large. Its first digit that is
// not 0 tells, by its place and the exponent.
bool IsTooSmall(std::string_view number) {
  const std::size_t mark = std::min(number.find_first_of("Ee"), number.size());
  const auto point = static_cast<std::int64_t>(std::min(number.find('.'), mark));
  const auto first = static_cast<std::int64_t>(number.find_first_of("123456789"));
  std::int64_t exponent = 0;
  if (mark < number.size()) {
    number.remove_prefix(mark + 1);
    if (number.front() == '+') number.remove_prefix(1);
    const auto result = std::from_chars(number.data(), number.data() + number.size(), exponent);
    if (result.ec == std::errc::result_out_of_range) return number.front() == '-';
  }
  return exponent < first - point;
}

// The largest number in 15 digits, which lies above it: what a file was given, it must give back.
constexpr std::string_view kLargestForm = "1.79769313486232E+308";

// A number of up to 15 digits without an exponent, as nearly all in files are: a double holds its digits and
// the power of ten exactly, so that the one division rounds as it should. Nothing for others.
std::optional<double> ConvertShort(std::string_view number) {
  constexpr std::size_t kMostExactDigits = 15;
  const bool negative = number.front() == '-';
  if (negative) number.remove_prefix(1);
  if (number.size() > kMostExactDigits) return std::nullopt;
  std::int64_t digits = 0;
  std::size_t point = number.size();
  for (std::size_t i = 0; i < number.size(); ++i) {
    if (IsDigit(number[i])) {
      digits = digits * 10 + (number[i] - '0');
    } else if (number[i] == '.') {
      point = i;
    } else {
      return std::nullopt;
    }
  }
  const std::size_t decimals = point == number.size() ? 0 : number.size() - point - 1;
  const double value = static_cast<double>(digits) / kPowersOfTen[decimals];
  return negative ? -value : value;
}

// Converts text that NumberLength has measured; nothing for a number too large for a double.
std::optional<double> Convert(std::string_view number) {
  if (number.front() == '+') number.remove_prefix(1);
  if (const std::optional<double> value = ConvertShort(number)) return value;
  std::string withE;
  const std::size_t d = number.find_first_of("Dd");
  if (d != std::string_view::npos) {
    withE.assign(number);
    withE[d] = 'e';
    number = withE;
  }
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    if (IsTooSmall(number)) return 0;
    const bool negative = number.front() == '-';
    if (number.substr(negative ? 1 : 0) == kLargestForm) {
      constexpr double kLargest = std::numeric_limits<double>::max();
      return negative ? -kLargest : kLargest;
    }
    return std::nullopt;
  }
  return value;
}

// 0 for a text that begins with no number, nothing for one too large for a double.
std::optional<double> ConvertLeading(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  const std::size_t length = NumberLength(text);
  return length == 0 ? 0 : Convert(text.substr(0, length));
}

}  // namespace

double RoundHalfEven(double value) { return std::nearbyint(value); }

double RoundTo(double value, int decimals) {
  const double scale = kPowersOfTen.at(static_cast<std::size_t>(decimals));
  const double scaled = value * scale;
  if (!(std::fabs(scaled) < kWholeLimit)) return value;
  const double rounded = std::nearbyint(scaled) / scale;
  return rounded == 0 ? 0.0 : rounded;
}

void AppendGeneralForm(std::string& text, double value) {
  if (!std::isfinite(value)) throw Fault(FaultKind::BadNumber, "no digits for a NaN or infinity");
  if (std::fabs(value) < 1e15 && value == std::trunc(value)) {
    AppendWhole(text, static_cast<std::int64_t>(value));
    return;
  }
  Digits number = ShortestDigits(value);
  if (!RoundToGeneral(number, value)) {
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific,
                                   kGeneralDigits - 1)
                         .ptr;
    number = TakeApart({buffer, end});
  }
  Append(text, number);
}

std::string GeneralForm(double value) {
  std::string text;
  AppendGeneralForm(text, value);
  return text;
}

void AppendRoundedForm(std::string& text, double value, int decimals) {
  const double scale = kPowersOfTen.at(static_cast<std::size_t>(decimals));
  const double scaled = std::nearbyint(value * scale);
  if (!(std::fabs(scaled) < 1e15)) {
    AppendGeneralForm(text, RoundTo(value, decimals));
    return;
  }
  // Below 15 digits the general form of units / scale is just the units' digits with a point set in.
  auto units = static_cast<std::int64_t>(scaled);
  if (units < 0) {
    text += '-';
    units = -units;
  }
  const auto divisor = static_cast<std::int64_t>(scale);
  AppendWhole(text, units / divisor);
  std::int64_t fraction = units % divisor;
  if (fraction == 0) return;
  char digits[12];
  int count = decimals;
  while (fraction % 10 == 0) fraction /= 10, --count;
  for (int i = count - 1; i >= 0; --i, fraction /= 10) digits[i] = static_cast<char>('0' + fraction % 10);
  (text += '.').append(digits, static_cast<std::size_t>(count));
}

std::string RoundedForm(double value, int decimals) {
  std::string text;
  AppendRoundedForm(text, value, decimals);
  return text;
}

std::string PrintForm(double value) {
  std::string text = value < 0 ? "" : " ";
  AppendGeneralForm(text, value);
  return text += ' ';
}

std::string ShortestForm(double value) { return Shortest(value); }
std::string ShortestForm(float value) { return Shortest(value); }

double Val(std::string_view text) { return ConvertLeading(text).value_or(0); }

double LeadingNumber(std::string_view text) {
  const std::optional<double> value = ConvertLeading(text);
  if (!value) throw Fault(FaultKind::Overflow, std::string(text.substr(0, 40)));
  return *value;
}

double WholeNumber(std::string_view text) {
  const std::size_t length = NumberLength(text);
  if (length == 0 || length != text.size()) {
    throw Fault(FaultKind::BadNumber, "\"" + std::string(text.substr(0, 40)) + "\"");
  }
  const std::optional<double> value = Convert(text);
  if (!value) throw Fault(FaultKind::Overflow, std::string(text.substr(0, 40)));
  return *value;
}

void RaiseOverflow(double value) { throw Fault(FaultKind::Overflow, ShortestForm(value)); }

}  // namespace pelorium
