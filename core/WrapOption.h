#pragma once

#include <QRadioButton>

namespace ql {

// An option button whose caption wraps onto further lines when the form is
// narrower than the caption, as a long option text in a frame needs.
class WrapOption : public QRadioButton {
    Q_OBJECT
public:
    explicit WrapOption(const QString& text, QWidget* parent = nullptr);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& pos) const override;

private:
    // The room of the caption beside the indicator.
    int indicatorRoom() const;
    QRect textRect(const QRect& area) const;
};

}  // namespace ql
