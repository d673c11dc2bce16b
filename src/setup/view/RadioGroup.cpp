#include "setup/view/RadioGroup.h"

#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace skeldon {

QGroupBox* MakeRadioGroup(const QString& title, std::initializer_list<QRadioButton*> choices)
{
    auto* const group = new QGroupBox(title);
    auto* const layout = new QVBoxLayout(group);
    for (QRadioButton* const choice : choices)
        layout->addWidget(choice);
    layout->addStretch();
    return group;
}

} // namespace skeldon
