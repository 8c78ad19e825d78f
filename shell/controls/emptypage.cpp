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
    , m_sentence(new QLabel(sentence, this))
    , m_line(makeQuietLabel(line, this))
    , m_buttons(new QHBoxLayout)
{
    auto *sign = new QLabel(this);
    sign->setPixmap(Icons::pixmap(icon, Theme::of(this).scheme, signSize, devicePixelRatioF()));
    m_sentence->setFont(TypeScale::emptyTitle());
    m_line->setFont(TypeScale::body());

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 16, 24, 18);
    rows->setSpacing(12);
    rows->addStretch(1);
    for (QLabel *label : {sign, m_sentence, m_line}) {
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

void EmptyPage::setWords(const QString &sentence, const QString &line)
{
    m_sentence->setText(sentence);
    m_line->setText(line);
}

void EmptyPage::addButton(QPushButton *button)
{
    m_buttons->insertWidget(m_buttons->count() - 1, button);
    if (!focusProxy())
        setFocusProxy(button);
}
