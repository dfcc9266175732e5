#pragma once

#include "core/Form.h"

namespace ql {

class CodeBox;

// The Preview wizard: receives the code of the effect that handed over and
// takes the user through previewing and publishing it.
class PreviewForm : public Form {
    Q_OBJECT
public:
    explicit PreviewForm(App& app);
    void load() override;
    void unloading() override;

private:
    CodeBox* Text1;
};

}  // namespace ql
