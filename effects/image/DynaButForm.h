#pragma once

#include "core/EffectForm.h"
#include "effects/image/DynaButModel.h"

class QLineEdit;

namespace ql {

class ImagePreview;
class StepWizard;

// The Dynamic Button wizard: the base, enter and click states of the
// button on three pages, its size and look on the fourth.
class DynaButForm : public ModelForm<DynaButModel> {
public:
    explicit DynaButForm(App& app);
    DynaButModel::Fields fields() const override;
    void setFields(const DynaButModel::Fields& fields);

    // Done: the size attributes, the check, the code and the hand-over.
    void done() override;

    // The page the wizard's buttons have counted to, 1 to 4. After a
    // refused Done it stands one below the page shown, for one press.
    int buttonStep() const { return buttonStep_; }

protected:
    void fillLists() override;
    void EditApplet() override;

private:
    void next();
    void previous();
    // Goes to a page (0 to 3) and puts the focus on a control of it.
    void showPage(int index, const char* focus);
    // Browse for the image of a state: the field, the preview and the size
    // fields follow the picture.
    void browseImage(QLineEdit* field, ImagePreview* preview, int slot);
    void browseSound(QLineEdit* field, int slot);
    // A chosen file's full path, nothing on Cancel.
    std::optional<QString> askFile(const QString& filter);

    StepWizard* wizard_;
    int buttonStep_ = 1;
    DynaButModel::SizeAttributes attributes_;
};

}  // namespace ql
