#pragma once

#include <QString>

class QWidget;

namespace ql {

class App;

// The banners of the preview page; the words "Made with Quillet" stand only
// in the preview, never in the user's code.
extern const QString PreviewBannerCgi;
extern const QString PreviewBannerCredits;
extern const QString PreviewCreditsFiller;
extern const QString PreviewBannerSections;
extern const QString PreviewBannerPlain;

// The whole preview page for a piece of code, chosen by the shape of the
// code, without the closing line break.
QString previewPageText(const QString& code, int effectId);

// Writes ql-prvw.htm into the program folder from the code of the Preview
// wizard's code box and opens it. `codeBox` takes the focus when the user
// cancels the browser pick.
void ShowPreviewPage(App& app, const QString& code, QWidget* window, QWidget* codeBox);

// Starts the user's HTML editor, asking for it first when it is not set.
void OpenHtmlEditor(App& app, QWidget* window);

// Whether a stored program path counts as set: "c:\" and "" do not.
bool programPathConfigured(const QString& path);

// The filter of the dialogs that pick a program.
extern const QString ProgramFilter;

}  // namespace ql
