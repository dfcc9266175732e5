#pragma once

#include "core/EffectSession.h"

namespace ql {

// Reads one value of pasted applet code: finds the first occurrence of `key`
// in `code`, steps over the character right behind it (taken to be the
// opening quote) and takes everything up to the next double quote, with all
// double quotes dropped. The result goes to session.ExtractedValue; "" when
// the key is absent or no quote follows it.
void ExtractParam(EffectSession& session, const QString& code, const QString& key);

// The characters that follow the first "CODE=" of pasted code: `count` of
// them, the opening quote included when there is one. Without "CODE=" they
// are taken from position 5 of the text.
QString classPrefix(const QString& code, int count);

}  // namespace ql
