#pragma once

#include "core/EffectModel.h"
#include "core/Form.h"

#include <functional>

class QComboBox;
class QHBoxLayout;
class QPushButton;
class QToolButton;

namespace ql {

class ColorSwatch;

// What every effect form shares: it opens clean or filled from pasted code,
// and on Done hands its code over to the Preview wizard. The effect's
// description drives re-edit and the hand-over.
class EffectForm : public Form {
    Q_OBJECT
public:
    EffectForm(App& app, const EffectDescription& description);

    // Opening: the file arrays are erased, the lists filled, and in re-edit
    // mode the fields are filled from the pasted code.
    void load() override;

    const EffectDescription& description() const { return description_; }

    // The Done action: the model's checks, then emission and hand-over.
    virtual void done() = 0;

protected:
    virtual void fillLists() {}
    // Fills the fields from the pasted code: each key of the description
    // reads its value into the control it names. A form whose fields do not
    // map one key to one control overrides it.
    virtual void EditApplet();

    // The value of one key of the pasted code ("" when absent).
    QString extract(const QString& key);

    // Tells a refusal of Done: its box, then the focus to its control.
    void refuse(const Refusal& refusal);

    // The closing steps of Done: the code goes to the session, the
    // required-file message is shown, the class and media files are
    // recorded, the effect number set, the form hides and the Preview wizard
    // opens.
    void HandOverToPreview(const HandOver& handOver);

public:
    // The colour pick of a "Select" label: on OK the label becomes a swatch
    // and `write` takes the colour as "r,g,b". Answers false on Cancel.
    // `format` writes the colour otherwise (one number, say).
    bool pickColor(ColorSwatch* swatch, const std::function<void(const QString&)>& write,
                   const std::function<QString(quint32)>& format = nullptr);
    // The file browse of a field: on OK `write` takes the bare name, and the
    // slot of the file arrays takes the name and the full path.
    bool browseFile(const QString& filter, const QString& title, int slot,
                    const std::function<void(const QString&)>& write);

protected:
    // The row of Help, Done and Cancel at the foot of a form, by the names
    // the form gives them; Done is the default button.
    QHBoxLayout* commandRow(const QString& doneName, const QString& cancelName, const QString& helpName,
                            const QString& doneCaption = QStringLiteral("&Done"));

    QPushButton* makeButton(const QString& name, const QString& caption);
    QToolButton* makeHelpButton(const QString& name);
    static void fillList(QComboBox* combo, const QStringList& values);

private:
    const EffectDescription& description_;
    // The pasted code while EditApplet reads it.
    QString pasted_;
    bool reading_ = false;
};

// An effect form whose Done is its model's: the form gathers the fields, the
// model checks them and writes the code. `Model` gives `Fields`,
// `description()`, `validate(fields)` and either `emitCode(fields)` or, for
// an effect whose files or number depend on the fields, `handOver(fields)`.
template <class Model>
class ModelForm : public EffectForm {
public:
    explicit ModelForm(App& app)
        : EffectForm(app, Model::description())
    {
    }

    // The field values as the controls hold them.
    virtual typename Model::Fields fields() const = 0;

    void done() override
    {
        const typename Model::Fields f = fields();
        if (const std::optional<Refusal> refusal = Model::validate(f)) {
            refuse(*refusal);
            return;
        }
        HandOverToPreview(handOverOf(f));
    }

private:
    static HandOver handOverOf(const typename Model::Fields& f)
    {
        if constexpr (requires { Model::handOver(f); })
            return Model::handOver(f);
        else
            return HandOver::of(Model::description(), Model::emitCode(f));
    }
};

}  // namespace ql
