#pragma once

#include "core/Form.h"

#include <QStringList>
#include <functional>

class QComboBox;
class QPushButton;
class QToolButton;

namespace ql {

class ColorSwatch;

// A check that stopped Done: the box text and style, and the control that
// takes the focus ("" for none).
struct Refusal {
    QString text;
    int style = 0;
    QString focus;
};

// The lists that the applet text forms offer.
const QStringList& FontList();
const QStringList& FontSizeList();

// What every effect form shares: it opens clean or filled from pasted code,
// and on Done hands its code over to the Preview wizard.
class EffectForm : public Form {
    Q_OBJECT
public:
    EffectForm(App& app, const QString& name);

    // Opening: the file arrays are erased, the lists filled, and in re-edit
    // mode the fields are filled from the pasted code.
    void load() override;

protected:
    virtual void fillLists() {}
    // Fills the fields from the pasted code, one ExtractParam per field.
    virtual void EditApplet() {}

    // The value of one key of the pasted code ("" when absent).
    QString extract(const QString& key);

    // Tells a refusal of Done: its box, then the focus to its control.
    void refuse(const Refusal& refusal);

    // The closing steps of Done: the code goes to the session, the
    // required-file message is shown, the class files are recorded, the
    // effect number set, the form hides and the Preview wizard opens.
    void HandOverToPreview(const QString& code, const QString& requiredFilesMessage, const QStringList& classes,
                           qint16 effectId);

    // The colour pick of a "Select" label: on OK the label becomes a swatch
    // and `write` takes the colour as "r,g,b". Answers false on Cancel.
    bool pickColor(ColorSwatch* swatch, const std::function<void(const QString&)>& write);
    // The file browse of a field: on OK `write` takes the bare name, and the
    // slot of the file arrays takes the name and the full path.
    bool browseFile(const QString& filter, const QString& title, int slot,
                    const std::function<void(const QString&)>& write);

    // Buttons every effect form has.
    QPushButton* makeButton(const QString& name, const QString& caption);
    QToolButton* makeHelpButton(const QString& name);
    static void fillList(QComboBox* combo, const QStringList& values);
};

}  // namespace ql
