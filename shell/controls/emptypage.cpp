// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/emptypage.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QVBoxLayout>

namespace {
constexpr int signSize = 72;
} // namespace

EmptyPage::EmptyPage(QLatin1StringView icon, const QString &sentence, const QString &line, QWidget *parent)
    : QWidget(parent)
    , m_buttons(new QHBoxLayout)
{
    auto *sign = new QLabel(this);
    sign->setPixmap(Icons::pixmap(icon, Theme::of(this).scheme, signSize, devicePixelRatioF()));
    auto *title = new QLabel(sentence, this);
    title->setFont(TypeScale::emptyTitle());
    QLabel *quietLine = makeQuietLabel(line, this);
    quietLine->setFont(TypeScale::body());

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 16, 24, 18);
    rows->setSpacing(12);
    rows->addStretch(1);
    for (QLabel *label : {sign, title, quietLine}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(label != sign);
        rows->addWidget(label);
    }
    rows->addSpacing(4);
    m_buttons->setSpacing(12);
    m_buttons->addStretch(1);
    m_buttons->addStretch(1);
    rows->addLayout(m_buttons);
    rows->addStretch(1);
}

void EmptyPage::addButton(QPushButton *button)
{
    m_buttons->insertWidget(m_buttons->count() - 1, button);
    if (!focusProxy())
        setFocusProxy(button);
}
