// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/menupicture.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/backgroundselector.h"
#include "shell/mainmenu/carddesk.h"

#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedLayout>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int restMilliseconds = 150;
constexpr double readable = 4.5;

} // namespace

MenuPicture::MenuPicture(QWidget *parent)
    : QWidget(parent)
    , m_stack(new QStackedLayout(this))
    , m_area(named(new QScrollArea(this), u"cardArea"_s))
    , m_desk(new CardDesk(m_area))
    , m_fitSoon(new QTimer(this))
{
    named(this, u"menuPicture"_s);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setWidget(m_desk);
    m_area->viewport()->setAutoFillBackground(false);
    m_desk->setAutoFillBackground(false);
    m_stack->addWidget(m_area);

    m_fitSoon->setSingleShot(true);
    m_fitSoon->setInterval(restMilliseconds);
    connect(m_fitSoon, &QTimer::timeout, this, [this] {
        fit();
        update();
    });
    connect(m_desk, &CardDesk::cardFocused, this,
            [this](QWidget *card) { m_area->ensureWidgetVisible(card, 0, 12); });
    connect(m_area->verticalScrollBar(), &QScrollBar::valueChanged, this, &MenuPicture::suitHeadInk);
}

void MenuPicture::setDate(const QString &date)
{
    m_desk->setDate(date);
    if (m_backdrop.isFitted())
        suitHeadInk();
}

void MenuPicture::showNews(const MenuNews &news)
{
    m_desk->showNews(news);
    if (m_backdrop.isFitted())
        suitHeadInk();
}

void MenuPicture::setTopWidget(QWidget *widget)
{
    m_desk->setTopWidget(widget);
}

void MenuPicture::setPicture(const QString &path)
{
    m_backdrop.setFile(path);
    update();
}

void MenuPicture::showSelector(BackgroundSelector *selector)
{
    m_stack->addWidget(selector);
    m_stack->setCurrentWidget(selector);
}

void MenuPicture::closeSelector()
{
    m_stack->setCurrentWidget(m_area);
}

QSize MenuPicture::devicePixels() const
{
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void MenuPicture::fit()
{
    m_backdrop.fit(devicePixels(), Theme::of(this));
    suitHeadInk();
}

/// Text colour or white, by what lies under date and sentence; where neither can be read, they get a plate.
void MenuPicture::suitHeadInk()
{
    const Theme &theme = Theme::of(this);
    const QRect head(m_desk->mapTo(this, m_desk->headRect().topLeft()), m_desk->headRect().size());
    const QColor under = m_backdrop.meanColor(head & rect(), rect(), theme);
    const QColor dark = Theme::light().text;
    const QColor light = theme.scheme == Icons::Scheme::Dark ? theme.text : QColor(Qt::white);
    const QColor ink = contrast(dark, under) >= contrast(light, under) ? dark : light;
    if (contrast(ink, under) >= readable)
        m_desk->setHeadInk(ink, false);
    else
        m_desk->setHeadInk(theme.text, true);
}

void MenuPicture::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (m_backdrop.isFitted())
        m_fitSoon->start();
}

void MenuPicture::paintEvent(QPaintEvent *)
{
    if (!m_backdrop.isFitted())
        fit();
    QPainter painter(this);
    m_backdrop.paint(painter, rect(), Theme::of(this));
    if (m_painted)
        return;
    m_painted = true;
    QMetaObject::invokeMethod(this, &MenuPicture::firstPainted, Qt::QueuedConnection);
}
