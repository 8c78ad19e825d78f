// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/steptitle.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"

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

void StepTitle::setTitle(const QString &title, const QString &shorter)
{
    m_text = title;
    m_shorter = shorter;
    m_title->setAccessibleName(title);
    showTitle();
}

void StepTitle::showTitle()
{
    const auto fits = [this](const QFont &font, const QString &text) {
        return QFontMetrics(font).horizontalAdvance(text) <= m_title->width();
    };
    const bool isWhole = m_shorter.isEmpty() || fits(TypeScale::windowTitle(), m_text);
    const QString &shown = isWhole ? m_text : m_shorter;
    m_title->setText(shown);
    // A large font of the desktop in a small window leaves room for less than a title.
    m_title->setFont(fits(TypeScale::windowTitle(), shown) ? TypeScale::windowTitle()
                     : fits(TypeScale::group(), shown)     ? TypeScale::group()
                                                           : TypeScale::strong());
}

void StepTitle::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    showTitle();
}
