#include "core/SharedRoutines.h"

#include "core/App.h"

namespace ql {

bool FileExists(App& app, const QString& path)
{
    return app.platform().files().canOpenForReading(path);
}

void ShellOpen(App& app, QWidget*, const QString& document)
{
    app.platform().shellOpen(document);
}

int ReadRegistryValue(App& app, const QString& key, const QString& valueName)
{
    const std::optional<RegistryData> data = app.platform().readRegistry(key, valueName);
    if (!data)
        return 2;  // the key or value is not there
    EffectSession& session = app.session();
    switch (data->type) {
    case RegistryData::String:
        if (data->secondReadFails) {
            session.RegistryValue = QString();
            return 1;
        }
        // The reported length counts the terminating zero, which stays.
        session.RegistryValue = data->text + QChar(0);
        return 0;
    case RegistryData::DWord:
        session.RegistryValue = qint64(data->number);
        return 0;
    default:
        return 0;
    }
}

void PickProgramFile(App& app)
{
    CommonDialog& dialog = app.commonDialog();
    dialog.CancelError = true;
    dialog.FileName.clear();
    if (dialog.ShowOpen())
        app.session().PickedFile = dialog.FileName;
}

}  // namespace ql
