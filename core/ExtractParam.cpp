#include "core/ExtractParam.h"

#include "core/Text.h"

namespace ql {

void ExtractParam(EffectSession& session, const QString& code, const QString& key)
{
    session.ExtractedValue.clear();
    const int keyLength = int(key.size());
    const int p = inStr(code, key);
    const int q = inStr(p + keyLength + 1, code, QStringLiteral("\""));
    if (p == 0)
        return;
    // With no quote behind the key the length is negative and the cut fails;
    // the value then stays empty.
    QString raw = midChecked(code, p + keyLength, q - p - keyLength).value_or(QString());
    raw.remove(QLatin1Char('"'));
    session.ExtractedValue = raw;
}

QString classPrefix(const QString& code, int count)
{
    const int p = inStr(code, QStringLiteral("CODE="));
    return mid(code, p + 5, count);
}

}  // namespace ql
