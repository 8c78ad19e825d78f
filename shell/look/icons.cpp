// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/icons.h"

#include "shell/look/theme.h"

#include <QFile>
#include <QIconEngine>
#include <QLibraryInfo>
#include <QPainter>
#include <QPixmapCache>
#include <QVersionNumber>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::Literals::StringLiterals;

// The pictures stand in a static library: naming them here keeps the linker from dropping them.
static void loadIconFiles()
{
    Q_INIT_RESOURCE(quillery_icons);
}

namespace {

constexpr std::array drawnSides{16, 20, 24, 32, 40, 44, 48, 64, 66, 72, 88, 96, 144};
constexpr std::array applicationSides{16, 20, 24, 32, 40, 48, 64, 128, 256};

QString fileOf(const QString &name, Icons::Scheme scheme, int side)
{
    const QLatin1StringView folder = scheme == Icons::Scheme::Dark ? "dark"_L1 : "light"_L1;
    return u":/icons/%1/%2-%3.png"_s.arg(folder, name, QString::number(side));
}

/// Paints one drawing at the size and in the state that is asked for.
class DrawnIcon final : public QIconEngine
{
public:
    DrawnIcon(const QString &name, Icons::Scheme scheme, const QColor &ink)
        : m_name(name)
        , m_scheme(scheme)
        , m_ink(ink)
    {
        loadIconFiles();
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap picture = pictureOf((QSizeF(rect.size()) * ratio).toSize(), mode);
        picture.setDevicePixelRatio(ratio);
        QRectF target(QPointF(), picture.deviceIndependentSize());
        target.moveCenter(QRectF(rect).center());
        painter->drawPixmap(target.topLeft(), picture);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        return pictureOf(size, mode);
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State, qreal ratio) override
    {
        // The size is in pixels of the screen before Qt 6.8 and in logical ones since. The library that runs
        // decides, since a program outlives an upgrade of it.
        static const bool isLogical = QLibraryInfo::version() >= QVersionNumber(6, 8);
        return pictureOf(isLogical ? (QSizeF(size) * ratio).toSize() : size, mode);
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        if (!m_sizes) {
            m_sizes.emplace();
            for (const int side : drawnSides)
                if (QFile::exists(fileOf(m_name, m_scheme, side)))
                    m_sizes->append(QSize(side, side));
        }
        return *m_sizes;
    }

    bool isNull() override { return availableSizes(QIcon::Normal, QIcon::Off).isEmpty(); }
    QString key() const override { return u"quillery"_s; }
    QIconEngine *clone() const override { return new DrawnIcon(*this); }

private:
    QPixmap pictureOf(const QSize &pixels, QIcon::Mode mode)
    {
        const int side = std::min(pixels.width(), pixels.height());
        const QColor ink = inkIn(mode);
        const QString key = fileOf(m_name, m_scheme, side) + (ink.isValid() ? ink.name() : QString());
        QPixmap picture;
        if (!QPixmapCache::find(key, &picture)) {
            picture = drawn(side, ink);
            QPixmapCache::insert(key, picture);
        }
        return picture;
    }

    /// An invalid colour leaves the drawing as it is.
    QColor inkIn(QIcon::Mode mode) const
    {
        const Theme &theme = m_scheme == Icons::Scheme::Dark ? Theme::dark() : Theme::light();
        if (mode == QIcon::Disabled)
            return theme.disabledText;
        return mode == QIcon::Selected ? theme.onAccent : m_ink;
    }

    /// The next larger picture made smaller; beyond the largest one that one itself.
    QPixmap drawn(int side, const QColor &ink)
    {
        const QList<QSize> sizes = availableSizes(QIcon::Normal, QIcon::Off);
        if (sizes.isEmpty() || side <= 0)
            return {};
        const auto larger =
            std::find_if(sizes.begin(), sizes.end(), [side](QSize size) { return size.width() >= side; });
        const int source = larger != sizes.end() ? larger->width() : sizes.last().width();
        QPixmap picture(fileOf(m_name, m_scheme, source));
        if (source > side)
            picture = picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        if (ink.isValid()) {
            QPainter painter(&picture);
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(picture.rect(), ink);
        }
        return picture;
    }

    QString m_name;
    Icons::Scheme m_scheme;
    QColor m_ink;
    std::optional<QList<QSize>> m_sizes; ///< looked up once
};

} // namespace

QIcon Icons::icon(QLatin1StringView name, Scheme scheme)
{
    return QIcon(new DrawnIcon(QString(name), scheme, QColor()));
}

QIcon Icons::tinted(QLatin1StringView name, Scheme scheme, const QColor &ink)
{
    return QIcon(new DrawnIcon(QString(name), scheme, ink));
}

QPixmap Icons::pixmap(QLatin1StringView name, Scheme scheme, int size, qreal devicePixelRatio)
{
    return icon(name, scheme).pixmap(QSize(size, size), devicePixelRatio);
}

QIcon Icons::applicationIcon()
{
    loadIconFiles();
    QIcon icon;
    for (const int side : applicationSides)
        icon.addFile(u":/icons/application/quillery-%1.png"_s.arg(side), QSize(side, side));
    return icon;
}
