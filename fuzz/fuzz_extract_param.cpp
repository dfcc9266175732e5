// Fuzzes the reader of pasted applet code: ExtractParam and the class prefix.
// Input: the key on the first line, the pasted code after it (UTF-8).

#include "FuzzSupport.h"
#include "core/ExtractParam.h"

#include <cstddef>
#include <cstdint>

using namespace ql;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char*>(data), qsizetype(size));
    const qsizetype eol = input.indexOf('\n');
    const QString key = QString::fromUtf8(eol < 0 ? input : input.left(eol));
    const QString code = eol < 0 ? QString() : QString::fromUtf8(input.mid(eol + 1));

    EffectSession session;
    session.ExtractedValue = QStringLiteral("left from before");
    ExtractParam(session, code, key);
    const QString value = session.ExtractedValue;
    // The value never keeps a double quote, and is found only behind the key
    // (an empty key stands at the start of any text).
    QL_FUZZ_CHECK(!value.contains(QLatin1Char('"')));
    QL_FUZZ_CHECK(value.isEmpty() || code.contains(key));
    QL_FUZZ_CHECK(value.size() <= code.size());
    // Reading is repeatable.
    EffectSession again;
    ExtractParam(again, code, key);
    QL_FUZZ_CHECK(again.ExtractedValue == value);

    for (int count : {0, 1, 5, 8, 64}) {
        const QString prefix = classPrefix(code, count);
        QL_FUZZ_CHECK(prefix.size() <= count);
        QL_FUZZ_CHECK(prefix.isEmpty() || code.contains(prefix));
    }
    return 0;
}
