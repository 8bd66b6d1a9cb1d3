#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Numbers read from what people type, and kept in their types. The decimal sign is a point in
/// every locale.
namespace forms {

/// The number at the start of a text: blanks, a sign, digits with at most one point, an exponent.
/// Reading stops at the first other character; a text without a number reads 0. There are no
/// hexadecimal numbers.
double leadingNumber(std::string_view text);

/// The nearest whole number; a half goes to the even one.
double roundedHalfEven(double value);

/// The nearest whole number, a half to the even one, held at the limits of the type where it does
/// not fit.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

/// Whether the nearest whole number lies within the limits of the type.
bool fitsInt16(double value);
bool fitsInt32(double value);

/// The absolute value; that of -32768 is 32767.
std::int16_t absolute(std::int16_t value);

/// Decimal text without blanks: "30", "-5", "2.5". The single precision form has the fewest digits
/// that read back.
std::string decimal(std::int32_t value);
std::string decimal(float value);

/// Decimal text with the place of the sign: a blank in front of a number that is not negative.
std::string decimalWithSignPlace(std::int32_t value);

}  // namespace forms
