#pragma once

class QWidget;

namespace ql {

// Gives every caption of a window that names a control an access key: a
// label with a buddy, a check box, an option button or a button whose
// caption has none gets the first free letter of its caption, preferring the
// first letters of words. The caption the program wrote stays readable
// through captionOf().
void giveAccessKeys(QWidget* window);

// Moves the focus to a control only when a person can see and use it.
void focusIfShown(QWidget* control);

// Keeps the focus of a window out of hidden and disabled controls: a focus
// that stands in one goes to the default button, else to the first control
// that takes it.
void settleFocus(QWidget* window);

}  // namespace ql
