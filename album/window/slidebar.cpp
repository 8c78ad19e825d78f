// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/slidebar.h"

#include "shell/look/theme.h"

#include <QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

SlideBar::SlideBar(QWidget *parent)
    : PanelFrame(parent)
{
    setObjectName(u"slideBar"_s);
    setPalette(Theme::of(this).panelPalette());
    setCursor(Qt::ArrowCursor);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(12, 10, 12, 10);
    row->setSpacing(8);
    const auto add = [this, row](const QString &name, const QString &caption, auto asked) {
        QPushButton *button = makeButton(name, caption, this);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QPushButton::clicked, this, asked);
        row->addWidget(button);
        return button;
    };
    add(u"slideBack"_s, u"Back"_s, &SlideBar::backAsked);
    m_pause = add(u"slidePause"_s, u"Pause"_s, &SlideBar::pauseAsked);
    m_pause->setMinimumWidth(m_pause->fontMetrics().horizontalAdvance(u"Go On"_s) + 40);
    add(u"slideNext"_s, u"Next"_s, &SlideBar::nextAsked);
    m_captions = add(u"slideCaptions"_s, u"Captions"_s, &SlideBar::captionsAsked);
    m_captions->setCheckable(true);
    add(u"slideEnd"_s, u"End"_s, &SlideBar::endAsked);
    adjustSize();
}

void SlideBar::setPaused(bool isPaused)
{
    m_pause->setText(isPaused ? u"Go On"_s : u"Pause"_s);
}

void SlideBar::setCaptions(bool areShown)
{
    m_captions->setChecked(areShown);
}
