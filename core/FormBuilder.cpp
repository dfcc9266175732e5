#include "core/FormBuilder.h"

#include "core/App.h"
#include "core/EffectForm.h"
#include "core/Widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyle>

namespace ql {

FormBuilder::FormBuilder(QWidget* area, int pairs, EffectForm* form)
    : area_(area)
    , grid_(nullptr)
    , form_(form)
    , pairs_(std::max(1, pairs))
{
    if (auto* existing = qobject_cast<QGridLayout*>(area->layout())) {
        grid_ = existing;
        row_ = grid_->rowCount();
    } else {
        grid_ = new QGridLayout(area);
    }
    grid_->setHorizontalSpacing(10);
    for (int p = 0; p < pairs_; ++p)
        grid_->setColumnStretch(2 * p + 1, 1);
}

FormBuilder FormBuilder::frame(const QString& name, const QString& title, int pairs)
{
    auto* box = named(new QGroupBox(title, area_), name);
    wide(box);
    return FormBuilder(box, pairs, form_);
}

FormBuilder FormBuilder::area(int pairs)
{
    auto* inner = new QWidget(area_);
    wide(inner);
    FormBuilder builder(inner, pairs, form_);
    builder.grid_->setContentsMargins(0, 0, 0, 0);
    return builder;
}

QLabel* FormBuilder::note(const QString& name, const QString& text)
{
    auto* label = new QLabel(text, area_);
    if (!name.isEmpty())
        label->setObjectName(name);
    label->setWordWrap(true);
    wide(label);
    return label;
}

QLabel* FormBuilder::caption(const QString& name, const QString& text)
{
    QLabel* label = makeCaption(name, text);
    wide(label);
    return label;
}

QLabel* FormBuilder::makeCaption(const QString& name, const QString& text)
{
    auto* label = new QLabel(text, area_);
    if (!name.isEmpty())
        label->setObjectName(name);
    return label;
}

void FormBuilder::sizeByChars(QWidget* field, int chars)
{
    if (chars <= 0)
        return;
    const int width = field->fontMetrics().horizontalAdvance(QLatin1Char('0')) * chars + 16;
    field->setFixedWidth(width);
}

void FormBuilder::place(QLabel* caption, QWidget* control)
{
    if (column_ >= pairs_)
        nextRow();
    const int c = 2 * column_;
    if (caption) {
        caption->setBuddy(control);
        grid_->addWidget(caption, row_, c);
        grid_->addWidget(control, row_, c + 1, control->maximumWidth() < QWIDGETSIZE_MAX ? Qt::AlignLeft : Qt::Alignment());
    } else {
        grid_->addWidget(control, row_, c, 1, 2, control->maximumWidth() < QWIDGETSIZE_MAX ? Qt::AlignLeft : Qt::Alignment());
    }
    ++column_;
}

void FormBuilder::placeLayout(QLabel* caption, QLayout* field)
{
    if (column_ >= pairs_)
        nextRow();
    const int c = 2 * column_;
    if (caption) {
        grid_->addWidget(caption, row_, c);
        grid_->addLayout(field, row_, c + 1);
    } else {
        grid_->addLayout(field, row_, c, 1, 2);
    }
    ++column_;
}

QLineEdit* FormBuilder::text(const QString& name, const QString& labelName, const QString& captionText, int chars)
{
    QLabel* label = captionText.isEmpty() ? nullptr : makeCaption(labelName, captionText);
    auto* box = named(new QLineEdit(area_), name);
    sizeByChars(box, chars);
    place(label, box);
    return box;
}

QComboBox* FormBuilder::combo(const QString& name, const QString& labelName, const QString& captionText,
                              bool editable, int chars)
{
    QLabel* label = captionText.isEmpty() ? nullptr : makeCaption(labelName, captionText);
    auto* box = named(new QComboBox(area_), name);
    box->setEditable(editable);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setMaxVisibleItems(12);
    noInlineCompletion(box);
    sizeByChars(box, chars);
    place(label, box);
    return box;
}

FormBuilder::ColorField FormBuilder::color(const QString& fieldName, const QString& swatchName,
                                           const QString& labelName, const QString& captionText, bool comboField,
                                           int chars, const std::function<QString(quint32)>& format)
{
    QLabel* label = captionText.isEmpty() ? nullptr : makeCaption(labelName, captionText);
    QWidget* field = nullptr;
    if (comboField) {
        auto* box = named(new QComboBox(area_), fieldName);
        box->setEditable(true);
        box->setInsertPolicy(QComboBox::NoInsert);
        noInlineCompletion(box);
        field = box;
    } else {
        field = named(new QLineEdit(area_), fieldName);
    }
    sizeByChars(field, chars);
    auto* swatch = named(new ColorSwatch(area_), swatchName);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(field, chars > 0 ? 0 : 1);
    row->addWidget(swatch);
    if (chars > 0)
        row->addStretch();
    if (label)
        label->setBuddy(field);
    placeLayout(label, row);
    if (form_) {
        EffectForm* form = form_;
        QObject::connect(swatch, &ColorSwatch::clicked, form, [form, swatch, field, format] {
            form->pickColor(swatch, [field](const QString& value) { setFieldText(field, value); }, format);
        });
    }
    return {field, swatch};
}

FormBuilder::BrowseField FormBuilder::browse(const QString& fieldName, const QString& buttonName,
                                             const QString& labelName, const QString& captionText,
                                             const QString& filter, int slot, const QString& title,
                                             const QString& buttonCaption,
                                             const std::function<void(const QString&)>& picked)
{
    QLabel* label = captionText.isEmpty() ? nullptr : makeCaption(labelName, captionText);
    auto* field = named(new QLineEdit(area_), fieldName);
    auto* browseButton = named(new QPushButton(buttonCaption, area_), buttonName);
    browseButton->setAutoDefault(false);
    browseButton->setIcon(QIcon::fromTheme(QStringLiteral("document-open"), browseButton->style()->standardIcon(QStyle::SP_DirOpenIcon)));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(field, 1);
    row->addWidget(browseButton);
    if (label)
        label->setBuddy(field);
    placeLayout(label, row);
    if (form_) {
        EffectForm* form = form_;
        QObject::connect(browseButton, &QPushButton::clicked, form, [form, field, filter, slot, title, picked] {
            const bool chosen =
                form->browseFile(filter, title, slot, [field](const QString& name) { field->setText(name); });
            if (chosen && picked)
                picked(form->app().session().RequiredPaths.at(slot));
        });
    }
    return {field, browseButton};
}

QLineEdit* FormBuilder::wideText(const QString& name, const QString& labelName, const QString& captionText)
{
    return static_cast<QLineEdit*>(wideField(labelName, captionText, named(new QLineEdit(area_), name)));
}

QWidget* FormBuilder::wideField(const QString& labelName, const QString& captionText, QWidget* control)
{
    QLabel* label = caption(labelName, captionText);
    label->setBuddy(control);
    return wide(control);
}

QSlider* FormBuilder::slider(const QString& name, const QString& labelName, const QString& captionText,
                             const SliderSteps& steps, const QString& lowName, const QString& lowText,
                             const QString& highName, const QString& highText)
{
    auto* holder = new QWidget(area_);
    auto* s = named(new QSlider(Qt::Horizontal, holder), name);
    s->setRange(steps.minimum, steps.maximum);
    s->setSingleStep(steps.small);
    s->setPageStep(steps.large);
    s->setTickInterval(steps.tick);
    s->setTickPosition(QSlider::TicksBelow);
    s->setValue(steps.value);
    auto* low = named(new QLabel(lowText, holder), lowName);
    auto* high = named(new QLabel(highText, holder), highName);
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(low);
    row->addWidget(s, 1);
    row->addWidget(high);
    holder->setFocusProxy(s);
    place(captionText.isEmpty() ? nullptr : makeCaption(labelName, captionText), holder);
    return s;
}

QCheckBox* FormBuilder::check(const QString& name, const QString& captionText)
{
    auto* box = named(new QCheckBox(captionText, area_), name);
    place(nullptr, box);
    return box;
}

QRadioButton* FormBuilder::option(const QString& name, const QString& captionText)
{
    auto* button = named(new QRadioButton(captionText, area_), name);
    place(nullptr, button);
    return button;
}

QPushButton* FormBuilder::button(const QString& name, const QString& captionText)
{
    QPushButton* b = commandButton(area_, name, captionText);
    place(nullptr, b);
    return b;
}

QWidget* FormBuilder::field(const QString& labelName, const QString& captionText, QWidget* control)
{
    control->setParent(area_);
    place(captionText.isEmpty() ? nullptr : makeCaption(labelName, captionText), control);
    return control;
}

QWidget* FormBuilder::wide(QWidget* control)
{
    nextRow();
    control->setParent(area_);
    grid_->addWidget(control, row_++, 0, 1, 2 * pairs_);
    return control;
}

void FormBuilder::wide(QLayout* layout)
{
    nextRow();
    grid_->addLayout(layout, row_++, 0, 1, 2 * pairs_);
}

void FormBuilder::nextRow()
{
    if (column_ == 0)
        return;
    ++row_;
    column_ = 0;
}

void FormBuilder::stretch()
{
    nextRow();
    grid_->setRowStretch(row_++, 1);
}

}  // namespace ql
