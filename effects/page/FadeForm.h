#pragma once

#include "core/EffectForm.h"
#include "effects/page/FadeModel.h"

class QSlider;

namespace ql {

class FormBuilder;

// The Background Colour Fade form.
class FadeForm : public ModelForm<FadeModel> {
public:
    explicit FadeForm(App& app);
    FadeModel::Fields fields() const override;

private:
    // The speed row of a frame: the slider between "Fast" and "Slow".
    QSlider* speedRow(FormBuilder& frame, const QString& sliderName, const QString& captionName,
                      const QString& fastName, const QString& slowName);
};

}  // namespace ql
