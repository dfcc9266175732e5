#pragma once

#include "core/EffectForm.h"
#include "effects/text/NavTickerModel.h"

class QLabel;
class QPushButton;

namespace ql {

class PageStack;

// The Navigator Ticker form: the applet's properties on its first page, then
// up to eleven messages, one at a time, on its second.
class NavTickerForm : public ModelForm<NavTickerModel> {
public:
    explicit NavTickerForm(App& app);
    NavTickerModel::Fields fields() const override;
    void done() override;

protected:
    void fillLists() override;
    void EditApplet() override;

private:
    void nextFromProperties();
    void nextMessage();
    void previousMessage();
    void storeMessage();
    void showMessage();
    void showPage(int page);
    qint16& index() const;
    // The slot of the shared message index, which another form may have
    // moved out of this form's table.
    int slot() const { return qBound(0, int(index()), NavTickerModel::Slots - 1); }

    PageStack* pages_ = nullptr;
    int count_ = 1;
    QList<NavTickerModel::Message> messages_ = QList<NavTickerModel::Message>(NavTickerModel::Slots);
};

}  // namespace ql
