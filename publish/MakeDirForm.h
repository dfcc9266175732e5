#pragma once

#include "core/Form.h"

class QLineEdit;

namespace ql {

class DirListBox;
class DriveListBox;

// The small dialog that makes a new folder inside the folder of Step 3.
class MakeDirForm : public Form {
    Q_OBJECT
public:
    explicit MakeDirForm(App& app);
    void load() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeDirEnter();

    DriveListBox* Drive1;
    DirListBox* Dir1;
    QLineEdit* Text1;
};

}  // namespace ql
