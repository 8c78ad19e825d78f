// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/backgroundslot.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/backdrop.h"

#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int ring = 5;  ///< around everything, for the focus
constexpr int mat = 5;   ///< around the picture
constexpr int below = 6; ///< between mat and name

constexpr QLatin1StringView inUseMark("  (in use)");

constexpr std::array pictureNames{
    "Morning hills", "Dunes",  "Quiet sea", "Meadow", "Birch wood", "Autumn leaves", "Snowfield", "Night sky",
    "Lake",          "Clouds", "Lavender",  "Reeds",  "Linen",      "Patchwork",     "Willow",    "Slate"};

/// The pictures that come with the program have this size and a name; a household's own ones have a number.
QString nameOf(int slot, QSize picture)
{
    if (picture == Backdrop::largest || picture.isEmpty())
        return QString::fromLatin1(pictureNames.at(std::size_t(slot)));
    return u"Picture "_s + QString::number(slot + 1);
}

} // namespace

BackgroundSlot::BackgroundSlot(int slot, QWidget *parent)
    : WalkButton(parent)
    , m_slot(slot)
{
    named(this, u"backgroundSlot_"_s + QString::number(slot));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
    setText(nameOf(slot, {}));
    tell();
}

void BackgroundSlot::load(const QString &path)
{
    QImageReader reader(path);
    const QSize full = path.isEmpty() ? QSize() : reader.size();
    const QSize wanted = thumbnail * devicePixelRatioF();
    if (!full.isEmpty()) {
        setText(nameOf(m_slot, full));
        // The bottom of the picture is what the main menu shows of it in any case.
        const QSize cover = full.scaled(wanted, Qt::KeepAspectRatioByExpanding);
        reader.setScaledSize(cover);
        reader.setScaledClipRect(
            QRect(QPoint((cover.width() - wanted.width()) / 2, cover.height() - wanted.height()), wanted));
        m_picture = QPixmap::fromImage(reader.read());
    }
    tell();
}

void BackgroundSlot::setInUse(bool inUse)
{
    m_inUse = inUse;
    tell();
    update();
}

void BackgroundSlot::tell()
{
    setAccessibleName(m_inUse ? QString(text() + u", in use"_s) : text());
    setAccessibleDescription(m_picture.isNull() ? u"The picture is missing"_s : QString());
    setToolTip(accessibleDescription());
}

QSize BackgroundSlot::frame() const
{
    return {2 * (ring + mat), 2 * (ring + mat) + below + QFontMetrics(TypeScale::body()).height()};
}

void BackgroundSlot::setPictureSize(QSize size, int widest)
{
    m_size = size;
    const int name = QFontMetrics(TypeScale::strong()).horizontalAdvance(text() + inUseMark) + 2 * mat;
    const QSize whole = size + frame();
    setFixedSize(std::max(whole.width(), std::min(name, widest)), whole.height());
}

QString BackgroundSlot::words() const
{
    return m_inUse ? QString(text() + inUseMark) : text();
}

void BackgroundSlot::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const Theme &theme = Theme::of(this);
    const QRect picture(QPoint((width() - m_size.width()) / 2, ring + mat), m_size);
    const QRect outside = picture.adjusted(-mat, -mat, mat, mat);

    const qreal rim = m_inUse ? 3 : 1;
    painter.setPen(QPen(m_inUse              ? theme.accent
                        : m_picture.isNull() ? theme.edge
                                             : theme.line,
                        rim, m_picture.isNull() && !m_inUse ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(underMouse() ? theme.soft : theme.field);
    painter.drawRoundedRect(QRectF(outside).adjusted(rim / 2, rim / 2, -rim / 2, -rim / 2), 4, 4);
    if (!m_picture.isNull())
        painter.drawPixmap(picture, m_picture);
    else {
        painter.setFont(TypeScale::label());
        painter.setPen(palette().color(ThemeRole::quiet));
        painter.drawText(picture, Qt::AlignCenter, u"No picture"_s);
    }

    const QFont font = m_inUse ? TypeScale::strong() : TypeScale::body();
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect name(0, outside.bottom() + 1 + below, width(), QFontMetrics(font).height());
    painter.drawText(name, Qt::AlignHCenter | Qt::AlignTop,
                     QFontMetrics(font).elidedText(words(), Qt::ElideRight, name.width()));
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(theme.accent, 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 8, 8);
    }
}
