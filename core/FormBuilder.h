#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSlider;
class QToolButton;
class QWidget;

namespace ql {

class ColorSwatch;
class EffectForm;

// Lays out the controls of a form the way its control table reads: rows of
// a caption and its field, frames, notes and options. Controls are made in
// reading order, so Tab follows that order; each caption is the buddy of
// its field, so that the keyboard pass gives it an access key.
class FormBuilder {
public:
    // Builds onto `area` (a form, a page or a frame) in a grid whose rows
    // hold `pairs` caption-and-field pairs side by side. `form`, where given,
    // wires colour picks and file browses to the effect contract.
    explicit FormBuilder(QWidget* area, int pairs = 1, EffectForm* form = nullptr);

    // A titled frame across the row, and a builder into it.
    FormBuilder frame(const QString& name, const QString& title, int pairs = 1);
    // A plain area across the row (for a row of options, say), and a builder into it.
    FormBuilder area(int pairs = 1);

    // A wrapped text across the row.
    QLabel* note(const QString& name, const QString& text);
    // A caption across the row, for the wide field below it.
    QLabel* caption(const QString& name, const QString& text);

    // A caption and its field. `chars` gives a field the width of that many
    // characters; 0 lets it stretch.
    QLineEdit* text(const QString& name, const QString& labelName, const QString& caption, int chars = 0);
    // An open list box takes typed text (without completing it); a closed
    // one only picks from its list.
    QComboBox* combo(const QString& name, const QString& labelName, const QString& caption,
                     bool editable = true, int chars = 0);
    // A field for a colour with its "Select" label beside it; `field` is a
    // text box or a combo box already made by this builder's caller, or
    // nullptr for a new text box.
    struct ColorField {
        QWidget* field;
        ColorSwatch* swatch;
    };
    // `format` writes a picked colour otherwise than "r,g,b" (one number, say).
    ColorField color(const QString& fieldName, const QString& swatchName, const QString& labelName,
                     const QString& caption, bool comboField = false, int chars = 0,
                     const std::function<QString(quint32)>& format = nullptr);
    // A field for a file with its browse button beside it: the field takes
    // the bare name and the file arrays the file, in `slot`; `picked`, where
    // given, then takes the full path of the file.
    struct BrowseField {
        QLineEdit* field;
        QPushButton* button;
    };
    BrowseField browse(const QString& fieldName, const QString& buttonName, const QString& labelName,
                       const QString& caption, const QString& filter, int slot,
                       const QString& title = QStringLiteral("Browse..."),
                       const QString& buttonCaption = QStringLiteral("Browse..."),
                       const std::function<void(const QString&)>& picked = nullptr);

    // A caption across the row with its field across the row below it.
    QLineEdit* wideText(const QString& name, const QString& labelName, const QString& caption);
    QWidget* wideField(const QString& labelName, const QString& caption, QWidget* control);

    // A caption and a horizontal slider with ticks, with the words of its
    // low and high ends beside it ("Slow" ... "Fast").
    struct SliderSteps {
        int minimum = 1;
        int maximum = 10;
        int small = 1;
        int large = 4;
        int tick = 1;
        int value = 1;
    };
    QSlider* slider(const QString& name, const QString& labelName, const QString& caption,
                    const SliderSteps& steps, const QString& lowName, const QString& lowText,
                    const QString& highName, const QString& highText);

    QCheckBox* check(const QString& name, const QString& caption);
    QRadioButton* option(const QString& name, const QString& caption);
    QPushButton* button(const QString& name, const QString& caption);
    // Any control, as the field of a caption ("" for none) or across the row.
    QWidget* field(const QString& labelName, const QString& caption, QWidget* control);
    QWidget* wide(QWidget* control);
    void wide(QLayout* layout);

    // Starts a new row of the grid.
    void nextRow();
    // Room that takes what the area has to spare, below the rows.
    void stretch();

    QWidget* widget() const { return area_; }
    QGridLayout* grid() const { return grid_; }

private:
    QLabel* makeCaption(const QString& name, const QString& text);
    void place(QLabel* caption, QWidget* field);
    void placeLayout(QLabel* caption, QLayout* field);
    void sizeByChars(QWidget* field, int chars);

    QWidget* area_;
    QGridLayout* grid_;
    EffectForm* form_;
    int pairs_;
    int row_ = 0;
    int column_ = 0;  // the next pair of this row
};

}  // namespace ql
