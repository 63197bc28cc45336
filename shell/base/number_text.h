#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantore {

/// The default text of a number: at most 15 significant digits, no zero before the point (".5", "-.25",
/// "3"), plain decimals for 0 and for 0.00001 <= |x| < 1E15, else with an exponent ("1E+15", "1.5E-06").
std::string defaultText(double value);

/// The default text with one blank in front of a number that isn't negative.
std::string str(double value);

/// `before` with a number joined to it, always one blank (or the minus) between: behind a blank or at
/// the start the default text, else `str`.
std::string joined(std::string_view before, double value);

/// The value of the longest leading numeric prefix, 0 when there is none. Blanks, tabs and line feeds in
/// front are skipped; the exponent letter is E or D in either case. Overflow beyond the double range.
double val(std::string_view text);

/// The value of a text that is a number from end to end, blanks allowed at both ends. TypeMismatch
/// otherwise, Overflow beyond the double range.
double numberFrom(std::string_view text);

/// The default text where it has no more than `width` characters, else the text with as many significant
/// digits as fit, rounded, with an exponent where that shows more of them. InvalidProcedureCall for a width
/// below 7, which not every number fits.
std::string fitted(double value, std::size_t width);

/// `value` under a positional mask such as "###,###.#0".
///
/// The value is taken to 15 significant decimal digits, then rounded to the mask's decimals, half away
/// from zero. The leftmost 0 before the point and the rightmost 0 after it fix the least counts of
/// digits; integer digits are never cut; a comma between placeholders groups by three; % multiplies by
/// 100. Every other character prints where it stands, the minus before everything.
std::string format(double value, std::string_view mask);

} // namespace vantore
