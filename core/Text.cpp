#include "core/Text.h"

#include <cmath>

namespace ql {

int inStr(int start, const QString& text, const QString& find)
{
    if (start < 1 || start > text.size() + 1)
        return 0;
    if (find.isEmpty())
        return start;
    const qsizetype at = text.indexOf(find, start - 1, Qt::CaseSensitive);
    return at < 0 ? 0 : int(at) + 1;
}

std::optional<QString> midChecked(const QString& text, int start, int length)
{
    if (start < 1 || length < 0)
        return std::nullopt;
    if (start > text.size())
        return QString();
    return text.mid(start - 1, length);
}

QString mid(const QString& text, int start, int length)
{
    return midChecked(text, start, length).value_or(QString());
}

double numericValue(const QString& text)
{
    int i = 0;
    const int n = int(text.size());
    while (i < n && (text[i] == ' ' || text[i] == '\t' || text[i] == '\r' || text[i] == '\n'))
        ++i;
    QString number;
    if (i < n && (text[i] == '-' || text[i] == '+'))
        number += text[i++];
    bool digits = false;
    while (i < n && text[i].isDigit() && text[i].unicode() < 128) {
        number += text[i++];
        digits = true;
    }
    if (i < n && text[i] == '.') {
        number += text[i++];
        while (i < n && text[i].isDigit() && text[i].unicode() < 128) {
            number += text[i++];
            digits = true;
        }
    }
    if (!digits)
        return 0.0;
    if (i < n && (text[i] == 'e' || text[i] == 'E')) {
        int j = i + 1;
        QString exponent = QStringLiteral("e");
        if (j < n && (text[j] == '-' || text[j] == '+'))
            exponent += text[j++];
        bool expDigits = false;
        while (j < n && text[j].isDigit() && text[j].unicode() < 128) {
            exponent += text[j++];
            expDigits = true;
        }
        if (expDigits)
            number += exponent;
    }
    bool ok = false;
    const double value = number.toDouble(&ok);
    return ok && std::isfinite(value) ? value : 0.0;
}

QString wholeNumberText(double value)
{
    const double cut = std::trunc(value);
    if (!std::isfinite(cut))
        return QStringLiteral("0");
    return QString::number(qint64(cut));
}

QString trimBlanks(const QString& text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == ' ')
        ++start;
    while (end > start && text[end - 1] == ' ')
        --end;
    return text.mid(start, end - start);
}

QString colorListValue(const QString& field)
{
    return trimBlanks(field.right(11));
}

QString colorTriple(quint32 color)
{
    const quint32 red = color % 256;
    const quint32 green = (color / 256) % 256;
    const quint32 blue = (color / 65536) % 256;
    return QStringLiteral("%1,%2,%3").arg(red).arg(green).arg(blue);
}

}  // namespace ql
