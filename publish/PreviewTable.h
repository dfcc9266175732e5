#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace ql {

// What the Preview wizard shows and does for the effect that handed over.
struct PreviewSettings {
    QString requiredClassesCaption;  // the line under the steps
    bool needsFiles = false;         // Step 3 is needed at all
    bool sectionedCode = false;      // the code comes in sections
};

// The settings of an effect number; nothing for a number outside 1 to 24.
// `controlText` answers the text of a control of another form ("ImageEffects",
// "Combo1"), or for an option button "1" when it is set; the captions of
// effects 7 and 12 depend on them.
std::optional<PreviewSettings> previewSettings(int effectId,
                                               const std::function<QString(const QString&, const QString&)>& controlText);

// The form of an effect number, "" outside 1 to 24.
QString formOfEffect(int effectId);

// The forms that the Finish page's Return to Main Menu unloads; the others
// stay loaded, hidden, with their values.
const QStringList& finishUnloads();

}  // namespace ql
