#include "planner/steptitle.h"

#include "shell/controls.h"
#include "shell/theme.h"

#include <QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

StepTitle::StepTitle(const Names &names, QWidget *parent)
    : QWidget(parent)
    , m_title(named(new ElidedLabel(this), names.title))
{
    m_title->setFont(TypeScale::windowTitle());
    QPushButton *back =
        makeIconButton(u"previous_"_s + names.unit, "previous"_L1, u"Previous "_s + names.unit, this);
    QPushButton *middle = makeButton(u"current_"_s + names.unit, names.middle, this);
    QPushButton *on = makeIconButton(u"next_"_s + names.unit, "next"_L1, u"Next "_s + names.unit, this);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(m_title, 1);
    for (QPushButton *button : {back, middle, on})
        layout->addWidget(button);
    connect(back, &QPushButton::clicked, this, [this] { emit stepped(-1); });
    connect(middle, &QPushButton::clicked, this, &StepTitle::todayRequested);
    connect(on, &QPushButton::clicked, this, [this] { emit stepped(1); });
}

void StepTitle::setTitle(const QString &title)
{
    m_title->setText(title);
    m_title->setAccessibleName(title);
}

QString StepTitle::title() const
{
    return m_title->text();
}
