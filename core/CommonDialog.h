#pragma once

#include <QString>

namespace ql {

class Platform;

// The program's one file and colour dialog: the caller sets its properties,
// then shows it. A show answers false when the user cancelled.
class CommonDialog {
public:
    explicit CommonDialog(Platform& platform);

    QString Filter;
    int FilterIndex = 1;
    QString DialogTitle;
    QString FileName;   // full path of the chosen file
    QString FileTitle;  // its bare name
    bool CancelError = false;
    quint32 Color = 0;

    bool ShowOpen();
    bool ShowSave();
    bool ShowColor();

private:
    bool showFile(bool save);
    Platform& platform_;
};

// The bare name of a file path.
QString bareFileName(const QString& path);

}  // namespace ql
