#pragma once

#include "core/EffectForm.h"
#include "effects/page/PulldownModel.h"

class QListWidget;

namespace ql {

// The Pulldown Menu form: two lists side by side, the rows' texts and their
// URLs, edited row by row through the PulldownURL dialog.
class PulldownForm : public ModelForm<PulldownModel> {
public:
    explicit PulldownForm(App& app);
    PulldownModel::Fields fields() const override;

    // The selected row, -1 for none, and the texts of a row.
    int selectedRow() const;
    QString itemText(int row) const;
    QString itemUrl(int row) const;
    // A new row at the insert position.
    void insertRow(const QString& text, const QString& url);
    // The text and URL of a row replaced, the row staying where it is.
    void replaceRow(int row, const QString& text, const QString& url);

protected:
    void fillLists() override;

private:
    void insertItem();
    void insertSeparator();
    void editItem();
    void removeItem();
    void selectRow(int row);

    QListWidget* List1;
    QListWidget* List2;
};

// The dialog that enters one row of the menu: a new one, or the selected
// one changed, as the session's PulldownItemMode says.
class PulldownURLForm : public Form {
    Q_OBJECT
public:
    explicit PulldownURLForm(App& app);

protected:
    void load() override;

private:
    void acceptRow();
    PulldownForm* menu() const;
};

}  // namespace ql
