#pragma once

#include <QString>
#include <optional>

namespace ql {

// Text routines with 1-based positions, in the manner the emitted code and
// the re-edit reader are specified: a position of 0 means "not found".

// Position of the first occurrence of `find` in `text` at or after `start`
// (1-based), case sensitive; 0 when absent or when start lies past the end.
int inStr(int start, const QString& text, const QString& find);
inline int inStr(const QString& text, const QString& find) { return inStr(1, text, find); }

// Up to `length` characters of `text` from position `start` (1-based).
// A start below 1 or a negative length is an error: nothing is returned.
std::optional<QString> midChecked(const QString& text, int start, int length);
// The same, with an empty result for an error.
QString mid(const QString& text, int start, int length);

// The leading number of a text: blanks skipped, an optional sign, digits
// with an optional decimal part and exponent; 0 when there is none.
double numericValue(const QString& text);

// A number as trimmed decimal text, cut to a whole number.
QString wholeNumberText(double value);

// A text without the blanks (spaces) at its ends; tabs and line breaks stay.
QString trimBlanks(const QString& text);

// The value of a field of a colour list: its last 11 characters, trimmed
// of blanks. A list row ("Red  -   255,0,0"), a picked "r,g,b" and a value
// read back alike give the numbers.
QString colorListValue(const QString& field);

// A colour value (red + green * 256 + blue * 65536) as "r,g,b".
QString colorTriple(quint32 color);

}  // namespace ql
