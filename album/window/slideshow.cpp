// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/slideshow.h"

#include "album/model/photodatewords.h"
#include "album/model/photoshelf.h"
#include "album/window/slidebar.h"
#include "album/window/wanted.h"
#include "album/window/windowlines.h"
#include "shell/look/theme.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto mouseRest = 3s;
constexpr auto softChange = 700ms;
constexpr double mostStretch = 4; ///< beyond a picture's own pixels
constexpr int keptPictures = 5;
constexpr int bytesOfPixel = 4;
constexpr int rim = 48;

/// "about 1974, Lake Vern, with Anne and Karin"
QString whenWhereAndWho(const Photo &photo, DateStyle style)
{
    QStringList parts{PhotoDateWords::heading(photo.date, style), photo.place,
                      AlbumWindowLines::withPeople(photo)};
    if (photo.date.isNone())
        parts.removeFirst();
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

} // namespace

SlideShow::SlideShow(const PhotoShelf &shelf, const QString &thumbnails, DateStyle style,
                     const SlideOptions &options)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint)
    , m_shelf(shelf)
    , m_style(style)
    , m_options(options)
    , m_queue(thumbnails)
    , m_awake(u"Slide show"_s)
    , m_bar(new SlideBar(this))
{
    setObjectName(u"slideShow"_s);
    setWindowTitle(u"Slide Show"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setCursor(Qt::BlankCursor);
    m_bar->hide();
    m_bar->setCaptions(options.hasCaptions);
    m_timer.setObjectName(u"Timer1"_s);
    m_timer.setParent(this);
    m_timer.setSingleShot(true);
    m_rest.setSingleShot(true);
    m_change.setStartValue(0.0);
    m_change.setEndValue(1.0);
    m_change.setDuration(int(std::chrono::milliseconds(softChange).count()));
    connect(&m_timer, &QTimer::timeout, this, &SlideShow::goOn);
    connect(&m_rest, &QTimer::timeout, this, [this] {
        m_bar->hide();
        setCursor(Qt::BlankCursor);
    });
    connect(&m_change, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&m_change, &QVariantAnimation::finished, this, [this] { m_before = {}; });
    connect(&m_queue, &PictureQueue::arrived, this, &SlideShow::take);
    connect(&m_queue, &PictureQueue::failed, this, &SlideShow::leaveOut);
    connect(m_bar, &SlideBar::backAsked, this, &SlideShow::goBack);
    connect(m_bar, &SlideBar::nextAsked, this, &SlideShow::goOn);
    connect(m_bar, &SlideBar::pauseAsked, this, [this] { setPaused(!m_isPaused); });
    connect(m_bar, &SlideBar::captionsAsked, this, [this] { setCaptions(!m_options.hasCaptions); });
    connect(m_bar, &SlideBar::endAsked, this, &QWidget::close);
}

SlideShow::~SlideShow() = default;

QList<int> SlideShow::shown(const PhotoShelf &shelf, const QList<int> &photos)
{
    QList<int> some;
    for (const int number : photos) {
        const Photo *photo = shelf.photo(number);
        if (photo && !photo->has(Photo::LeftOutOfShows))
            some << number;
    }
    return some;
}

void SlideShow::start(const QList<int> &photos, int first)
{
    const auto kind = m_options.isShuffled ? SlideOrder::Kind::Shuffled : SlideOrder::Kind::AsTheyStand;
    m_order = SlideOrder(shown(m_shelf, photos), kind, first);
    QScreen *const screen = m_options.screen ? m_options.screen : QGuiApplication::screenAt(QCursor::pos());
    if (screen)
        setGeometry(screen->geometry());
    const double ratio = screen ? screen->devicePixelRatio() : 1;
    const QSizeF pixels = QSizeF(size()) * ratio;
    m_queue.setSide(int(std::max(pixels.width(), pixels.height())));
    m_queue.setMostKept(qsizetype(pixels.width() * pixels.height()) * bytesOfPixel * keptPictures);
    showFullScreen();
    activateWindow();
    setFocus();
    bring();
}

/// Asks for the picture whose turn it is, and for its neighbours. What is on the screen stays until it is
/// here.
void SlideShow::bring()
{
    m_timer.stop();
    const int number = m_order.current();
    if (number == 0) {
        m_presented = 0;
        m_picture = {};
        m_words = u"None of these pictures can be shown"_s;
        update();
        return;
    }
    const PictureQueue::Kept kept = m_queue.kept(number);
    if (!kept.image.isNull())
        take(number, kept.image, kept.look);
    std::vector<WantedPicture> around;
    for (const int other : {m_order.next(), m_order.previous()}) {
        if (other != number)
            around.push_back(wantedPicture(m_shelf, other));
    }
    m_queue.show({wantedPicture(m_shelf, number)}, around);
    if (kept.image.isNull() && !kept.reason.isEmpty())
        leaveOut(number);
}

void SlideShow::take(int id, const QImage &image, PictureQueue::Look look)
{
    if (id != m_order.current())
        return;
    const bool isWhole = look != PictureQueue::Look::Rough;
    present(id, image, isWhole);
    if (isWhole)
        waitForNext();
}

/// A picture that is missing or cannot be read does not stop the show.
void SlideShow::leaveOut(int id)
{
    const bool isCurrent = id == m_order.current();
    m_order.leaveOut(id);
    if (isCurrent)
        bring();
}

void SlideShow::present(int id, const QImage &image, bool isWhole)
{
    const bool isAnother = id != m_presented;
    if (isAnother && m_options.isSoft && !m_picture.isNull()) {
        m_before = m_picture;
        m_change.start();
    }
    m_presented = id;
    m_picture = image;
    m_words.clear();
    if (const Photo *photo = m_shelf.photo(id); photo && (isAnother || isWhole))
        tell(*photo);
    update();
}

/// For those who hear the pictures.
void SlideShow::tell(const Photo &photo)
{
    QStringList parts{AlbumWindowLines::nameOf(photo), whenWhereAndWho(photo, m_style)};
    parts.removeAll(QString());
    const QString words = parts.join(u", "_s);
    if (words == accessibleName())
        return;
    setAccessibleName(words);
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void SlideShow::waitForNext()
{
    if (!m_isPaused && !m_timer.isActive())
        m_timer.start(std::chrono::seconds(
            std::clamp(m_options.seconds, SlideOptions::leastSeconds, SlideOptions::mostSeconds)));
}

void SlideShow::goOn()
{
    m_order.forward();
    bring();
}

void SlideShow::goBack()
{
    m_order.back();
    bring();
}

void SlideShow::setPaused(bool isPaused)
{
    m_isPaused = isPaused;
    m_bar->setPaused(isPaused);
    if (isPaused)
        m_timer.stop();
    else
        waitForNext();
    update();
}

void SlideShow::setCaptions(bool areShown)
{
    m_options.hasCaptions = areShown;
    m_bar->setCaptions(areShown);
    update();
}

void SlideShow::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const bool isChanging = m_change.state() == QAbstractAnimation::Running && !m_before.isNull();
    const double share = isChanging ? m_change.currentValue().toDouble() : 1;
    if (isChanging)
        paintPicture(painter, m_before, 1 - share);
    paintPicture(painter, m_picture, share);
    painter.setOpacity(1);
    painter.setPen(Qt::white);
    painter.setFont(TypeScale::windowTitle());
    if (!m_words.isEmpty())
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_words);
    if (m_options.hasCaptions)
        paintCaption(painter);
    if (m_isPaused) {
        painter.setFont(TypeScale::group());
        painter.setPen(Qt::white);
        painter.drawText(rect().adjusted(0, rim / 2, -rim / 2, 0), Qt::AlignRight | Qt::AlignTop,
                         u"Paused"_s);
    }
}

void SlideShow::paintPicture(QPainter &painter, const QImage &image, double opacity) const
{
    if (image.isNull())
        return;
    QSizeF place = QSizeF(image.size()).scaled(size(), Qt::KeepAspectRatio);
    const QSizeF most = QSizeF(image.size()) * mostStretch / devicePixelRatioF();
    if (place.width() > most.width())
        place = most;
    QRectF target({}, place);
    target.moveCenter(QRectF(rect()).center());
    painter.setOpacity(opacity);
    painter.drawImage(target, image);
}

/// On a darkening at the foot of the screen, so that it can be read over any picture.
void SlideShow::paintCaption(QPainter &painter) const
{
    const Photo *photo = m_shelf.photo(m_presented);
    if (!photo)
        return;
    const QString under = whenWhereAndWho(*photo, m_style);
    QFont large = TypeScale::windowTitle();
    large.setPointSizeF(large.pointSizeF() * 1.2);
    const QFont small = TypeScale::group();
    const QRect room = rect().adjusted(rim, 0, -rim, 0);
    constexpr int wrapped = Qt::AlignHCenter | Qt::TextWordWrap;
    const QRect main = QFontMetrics(large).boundingRect(room, wrapped, photo->caption);
    const int mainHeight = photo->caption.isEmpty() ? 0 : std::min(main.height(), height() / 3);
    const int underHeight = under.isEmpty() ? 0 : QFontMetrics(small).height() + 6;
    if (mainHeight + underHeight == 0)
        return;
    const QRect band(0, height() - mainHeight - underHeight - rim, width(), mainHeight + underHeight + rim);
    QLinearGradient dark(0, band.top() - rim, 0, band.top() + rim / 2.0);
    dark.setColorAt(0, Qt::transparent);
    dark.setColorAt(1, QColor(0, 0, 0, 170));
    painter.fillRect(band.adjusted(0, -rim, 0, 0), dark);
    painter.setPen(Qt::white);
    painter.setFont(large);
    painter.drawText(QRect(room.left(), band.top() + rim / 2, room.width(), mainHeight), wrapped,
                     photo->caption);
    painter.setFont(small);
    painter.setPen(QColor(255, 255, 255, 215));
    painter.drawText(QRect(room.left(), band.top() + rim / 2 + mainHeight, room.width(), underHeight),
                     Qt::AlignHCenter | Qt::AlignBottom,
                     QFontMetrics(small).elidedText(under, Qt::ElideRight, room.width()));
}

void SlideShow::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        return;
    case Qt::Key_Space:
        setPaused(!m_isPaused);
        return;
    case Qt::Key_C:
        setCaptions(!m_options.hasCaptions);
        return;
    default:
        if (!goByKey(event->key()))
            QWidget::keyPressEvent(event);
    }
}

bool SlideShow::goByKey(int key)
{
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_PageDown:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goOn();
        return true;
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_PageUp:
    case Qt::Key_Backspace:
        goBack();
        return true;
    case Qt::Key_Home:
        m_order.toFirst();
        bring();
        return true;
    case Qt::Key_End:
        m_order.toLast();
        bring();
        return true;
    default:
        return false;
    }
}

void SlideShow::mouseMoveEvent(QMouseEvent * /*event*/)
{
    setCursor(Qt::ArrowCursor);
    m_bar->show();
    m_rest.start(mouseRest);
}

void SlideShow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton || event->button() == Qt::ForwardButton)
        goOn();
    else if (event->button() == Qt::BackButton)
        goBack();
}

void SlideShow::wheelEvent(QWheelEvent *event)
{
    if (event->angleDelta().y() < 0)
        goOn();
    else if (event->angleDelta().y() > 0)
        goBack();
    event->accept();
}

void SlideShow::resizeEvent(QResizeEvent * /*event*/)
{
    m_bar->adjustSize();
    m_bar->move((width() - m_bar->width()) / 2, rim); // the captions stand at the foot
}

void SlideShow::closeEvent(QCloseEvent *event)
{
    m_timer.stop();
    emit ended(m_presented);
    QWidget::closeEvent(event);
}
