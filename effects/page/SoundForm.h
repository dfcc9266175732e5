#pragma once

#include "core/EffectForm.h"
#include "effects/page/SoundModel.h"

class QPushButton;

namespace ql {

class PageStack;

// The Sound Effect form: the format page, then the WAV page or the AU page,
// one way forward.
class SoundForm : public ModelForm<SoundModel> {
public:
    explicit SoundForm(App& app);
    SoundModel::Fields fields() const override;

protected:
    void EditApplet() override;

private:
    QWidget* buildFormatPage();
    QWidget* buildWavPage();
    QWidget* buildAuPage();
    void next();
    void showPage(int index, const char* focus, const char* defaultButton);

    PageStack* pages_;
};

}  // namespace ql
