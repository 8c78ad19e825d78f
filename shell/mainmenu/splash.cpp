// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/splash.h"

#include "shell/core/settingskeys.h"
#include "shell/look/icons.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "shell/program/sharedprocedures.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize windowSize(520, 300);
constexpr int hillsHeight = 92;
constexpr int iconSide = 96;
constexpr auto wantedKey = "MainMenu/showOpeningPicture"_L1;

/// One layer of hills along the lower edge: a slow wave, lower to the right.
QPainterPath hills(const QRectF &area, qreal top, qreal rise)
{
    QPainterPath path;
    path.moveTo(area.left(), area.bottom());
    path.lineTo(area.left(), area.bottom() - top);
    const qreal third = area.width() / 3;
    path.cubicTo(area.left() + third, area.bottom() - top - rise, area.left() + third,
                 area.bottom() - top + rise / 2, area.left() + 2 * third, area.bottom() - top + rise / 3);
    path.cubicTo(area.left() + 2.5 * third, area.bottom() - top + rise / 5, area.right() - third / 4,
                 area.bottom() - top - rise, area.right(), area.bottom() - top - rise / 2);
    path.lineTo(area.bottomRight());
    path.closeSubpath();
    return path;
}

} // namespace

Splash1::Splash1(const Program &program)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint)
    , m_program(program)
    , m_familyName(program.settings.text(SettingsKeys::familyName))
{
    setObjectName("Splash1"_L1);
    setWindowTitle(m_familyName.caption());
    setAccessibleName(windowTitle());
    setFixedSize(windowSize);
}

bool Splash1::isWanted(const QSettings &store)
{
    return store.value(wantedKey, true).toBool();
}

void Splash1::setWanted(QSettings &store, bool wanted)
{
    store.setValue(wantedKey, wanted);
}

void Splash1::open()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    move(screen.x() + (screen.width() - width()) / 2, screen.y() + (screen.height() - height()) / 2);
    show();
    activateWindow();
    QCoreApplication::processEvents();
}

void Splash1::giveWayTo(QWidget &next)
{
    QCoreApplication::processEvents();
    const auto isEnough = [this] { return m_isEnough; };
    HINFO1::pauseOneSecond(m_program, isEnough);
    HINFO1::pauseOneSecond(m_program, isEnough);
    next.show();
    next.activateWindow();
    QCoreApplication::processEvents();
    close();
}

void Splash1::paintCard(QPainter &painter, const QRectF &card) const
{
    const Theme &theme = Theme::of(this);
    const bool dark = theme.scheme == Icons::Scheme::Dark;
    QLinearGradient sky(card.topLeft(), card.bottomLeft());
    sky.setColorAt(0, dark ? QColor(0x2F, 0x35, 0x36) : QColor(0xFF, 0xFD, 0xF9));
    sky.setColorAt(0.7, dark ? QColor(0x36, 0x39, 0x37) : QColor(0xF6, 0xEA, 0xD6));
    painter.fillRect(card, sky);
    painter.setPen(Qt::NoPen);
    const QColor light(0x7F, 0xB5, 0xA6), deep(0x3A, 0x76, 0x69);
    for (int layer = 0; layer < 3; ++layer) {
        QColor color = layer == 0 ? light : layer == 1 ? QColor(0x5B, 0x95, 0x86) : deep;
        painter.setBrush(dark ? color.darker(260) : color);
        painter.drawPath(hills(card, hillsHeight - layer * 28, 22 - layer * 4));
    }
    painter.setPen(QPen(theme.edge, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(card.adjusted(0.5, 0.5, -0.5, -0.5));
}

void Splash1::keyPressEvent(QKeyEvent *)
{
    m_isEnough = true;
}

void Splash1::mousePressEvent(QMouseEvent *)
{
    m_isEnough = true;
}

void Splash1::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme &theme = Theme::of(this);
    paintCard(painter, rect());

    const QPoint icon(44, 52);
    painter.drawPixmap(icon, Icons::applicationIcon().pixmap(QSize(iconSide, iconSide), devicePixelRatioF()));
    const int left = icon.x() + iconSide + 28;
    const QRect words(left, icon.y() - 4, width() - left - 24, iconSide + 8);

    QFont name = TypeScale::date();
    name.setPointSizeF(name.pointSizeF() * 1.35);
    painter.setFont(name);
    painter.setPen(theme.text);
    const QString &family = m_familyName.text();
    const QRect title = words.adjusted(0, 0, 0, -words.height() / 3);
    painter.drawText(title, Qt::AlignLeft | Qt::AlignBottom, u"Quillery"_s);
    painter.setFont(TypeScale::group());
    painter.setPen(theme.quiet);
    const QString below = family.isEmpty() ? u"The household, in good order"_s : family;
    painter.drawText(QRect(left + 2, title.bottom() + 4, words.width(), words.height()),
                     Qt::AlignLeft | Qt::AlignTop, below);

    painter.setFont(TypeScale::body());
    painter.setPen(Qt::white);
    painter.drawText(rect().adjusted(0, 0, -24, -18), Qt::AlignRight | Qt::AlignBottom, u"Loading"_s);
}
