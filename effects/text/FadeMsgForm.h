#pragma once

#include "core/EffectForm.h"
#include "effects/text/FadeMsgModel.h"

namespace ql {

class PageStack;

// The Fading Message form: the applet's properties and the defaults of
// every message on its first page, then up to eleven messages, one at a
// time, on its second.
class FadeMsgForm : public ModelForm<FadeMsgModel> {
public:
    explicit FadeMsgForm(App& app);
    FadeMsgModel::Fields fields() const override;
    void done() override;

protected:
    void fillLists() override;
    void EditApplet() override;

private:
    void nextFromProperties();
    void nextMessage();
    void previousMessage();
    FadeMsgModel::Message storedPage() const;
    void showMessage();
    void showPage(int page);
    qint16& index() const;
    // The slot of the shared message index, which another form may have
    // moved out of this form's table.
    int slot() const { return qBound(0, int(index()), FadeMsgModel::Slots - 1); }

    PageStack* pages_ = nullptr;
    int count_ = 1;
    QString font_;
    QString margin_;
    QList<FadeMsgModel::Message> messages_ = QList<FadeMsgModel::Message>(FadeMsgModel::Slots);
};

}  // namespace ql
