#pragma once

#include "core/Form.h"

class QLineEdit;

namespace ql {

// The preferences: the paths of the Web browser and of the HTML editor.
class OptionsForm : public Form {
    Q_OBJECT
public:
    explicit OptionsForm(App& app);
    void load() override;

private:
    void browse(QLineEdit* box, const QString& title);
    void save();

    QLineEdit* Text4;
    QLineEdit* Text1;
};

}  // namespace ql
