// Numbers as text and text as numbers, rounding, and stores into narrow integers. A point in every locale.
#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace pelorium {

// Degrees to radians in every turn of the system. Less exact than pi / 180; models depend on it.
inline constexpr double kRadiansPerDegree = 0.01745329;

double RoundHalfEven(double value);

// Rounded to `decimals` places, ties to even. From 2^52 scaled units on, a double has no such places left and
// the value stays. Never -0.
double RoundTo(double value, int decimals);

// General form: up to 15 significant digits, no blanks, trailing zeros cut; plain digits from 1E-15 to below
// 1E15, else "1.5E-16", "1E+15". Zero is "0". A NaN or an infinity raises BadNumber.
std::string GeneralForm(double value);
void AppendGeneralForm(std::string& text, double value);

// GeneralForm(RoundTo(value, decimals)).
std::string RoundedForm(double value, int decimals);
void AppendRoundedForm(std::string& text, double value, int decimals);

// A number printed alone: general form, one leading blank if not negative, one trailing blank. " 0.25 ",
// "-0.5 ".
std::string PrintForm(double value);

// The shortest digits that read back as the same double, laid out like the general form. NaN and infinities
// come out as "nan", "inf", "-inf": this form is for showing a value, never for files.
std::string ShortestForm(double value);
std::string ShortestForm(float value);

// The longest leading number of a text (blanks before it are passed over), else 0: how text boxes are read. A
// number too large for a double is 0 too: what is typed never ends a handler.
double Val(std::string_view text);

// The same for values of a file: a number too large for a double raises Overflow.
double LeadingNumber(std::string_view text);

// A text that is a number as a whole: sign, digits, point, exponent E or D. Anything else raises BadNumber, a
// number beyond double raises Overflow. The general form of the largest double lies beyond it and reads as
// that.
double WholeNumber(std::string_view text);

// Stores `value` into an integer field: half to even, then the field's own range; outside it raises Overflow.
template <std::integral Field>
Field ToInteger(double value);

// As ToInteger, for values that are whole already.
template <std::integral Field>
Field Narrow(std::int64_t value);

[[noreturn]] void RaiseOverflow(double value);

template <std::integral Field>
Field ToInteger(double value) {
  const double rounded = RoundHalfEven(value);
  // One past the maximum is a power of two, which a double holds even when it does not hold the maximum.
  if (!(rounded >= static_cast<double>(std::numeric_limits<Field>::min()) &&
        rounded < static_cast<double>(std::numeric_limits<Field>::max() / 2 + 1) * 2)) {
    RaiseOverflow(value);
  }
  return static_cast<Field>(rounded);
}

template <std::integral Field>
Field Narrow(std::int64_t value) {
  if (value < std::numeric_limits<Field>::min() || value > std::numeric_limits<Field>::max()) {
    RaiseOverflow(static_cast<double>(value));
  }
  return static_cast<Field>(value);
}

}  // namespace pelorium
