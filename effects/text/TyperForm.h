#pragma once

#include "core/EffectForm.h"
#include "effects/text/TyperModel.h"

class QCheckBox;
class QLabel;

namespace ql {

class CodeBox;
class StepWizard;

// The Typewriter Text wizard: the text or its file, the text's looks, and
// the applet's properties, on three pages; the forward button reads Done on
// the last.
class TyperForm : public ModelForm<TyperModel> {
public:
    explicit TyperForm(App& app);
    TyperModel::Fields fields() const override;

    // What the form shows of a text file it read: the beginning of its text,
    // or why there is none.
    struct FilePreview {
        QString note;
        QString text;
    };
    static FilePreview previewOf(const std::optional<QByteArray>& bytes);

protected:
    void fillLists() override;
    void EditApplet() override;

private:
    void forward();
    void back();
    void showStep(int step, QWidget* focus);
    void fileOptionChanged(bool fromFile);
    void showFile(const QString& path);
    void checkWhileTyping(QWidget* field, bool (*passes)(const QString&));

    StepWizard* wizard_ = nullptr;
    int step_ = 1;
    bool checking_ = false;
    bool listsFilled_ = false;
    QString previewedName_;
};

}  // namespace ql
