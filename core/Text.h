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

// A colour value (red + green * 256 + blue * 65536) as "r,g,b".
QString colorTriple(quint32 color);

// A text without its leading and trailing blanks (only blanks: tabs and
// line breaks stay).
QString trimBlanks(const QString& text);

// The colour of a field that offers the colour list: its last 11
// characters, trimmed of blanks, so that "Blue  -                0,0,255"
// reads "0,0,255" and a typed "10,20,30" stays as it is.
QString colorListValue(const QString& field);

}  // namespace ql
