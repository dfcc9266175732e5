#include "core/CommonDialog.h"

#include "platform/Platform.h"

namespace ql {

CommonDialog::CommonDialog(Platform& platform)
    : platform_(platform)
{
}

QString bareFileName(const QString& path)
{
    const qsizetype cut = std::max(path.lastIndexOf('/'), path.lastIndexOf('\\'));
    return path.mid(cut + 1);
}

bool CommonDialog::showFile(bool save)
{
    FileDialogRequest request;
    request.kind = save ? FileDialogRequest::Kind::Save : FileDialogRequest::Kind::Open;
    request.title = DialogTitle;
    request.filter = Filter;
    request.filterIndex = FilterIndex;
    request.fileName = FileName;
    const std::optional<QString> chosen = platform_.fileDialog(request);
    if (!chosen)
        return false;
    FileName = *chosen;
    FileTitle = bareFileName(*chosen);
    return true;
}

bool CommonDialog::ShowOpen() { return showFile(false); }
bool CommonDialog::ShowSave() { return showFile(true); }

bool CommonDialog::ShowColor()
{
    // The colour dialog has no title of its own.
    const std::optional<quint32> chosen = platform_.colorDialog(QString());
    if (!chosen)
        return false;
    Color = *chosen;
    return true;
}

}  // namespace ql
