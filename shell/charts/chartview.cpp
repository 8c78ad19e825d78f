// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/chartview.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int headGap = 10;
} // namespace

ChartView::ChartView(const QString &name, QWidget *parent)
    : QWidget(parent)
    , m_title(named(new ElidedLabel(this), name + u"Title"_s))
    , m_caption(named(new ElidedLabel(this), name + u"Caption"_s))
    , m_reading(named(new ElidedLabel(this), name + u"Reading"_s))
{
    setObjectName(name);
    m_title->setFont(TypeScale::group());
    m_caption->setFont(TypeScale::label());
    m_caption->setForegroundRole(ThemeRole::quiet);
    m_reading->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartView::setHead(const QString &title, const QString &caption, const QString &description)
{
    setAccessibleName(title);
    setAccessibleDescription(description);
    m_title->setText(title);
    m_caption->setText(caption);
}

void ChartView::setReading(const QString &words)
{
    m_reading->setText(words);
    placeReading();
}

void ChartView::setBesideCaption(QWidget *beside)
{
    m_beside = beside;
}

int ChartView::headHeight() const
{
    const int words = m_caption->text().isEmpty() ? 0 : m_caption->sizeHint().height();
    const int caption = std::max(words, m_beside ? m_beside->sizeHint().height() : 0);
    return frame + m_title->sizeHint().height() + caption + headGap;
}

void ChartView::placeHead(int width)
{
    const int titleHeight = m_title->sizeHint().height();
    const int titleWidth = std::min(m_title->sizeHint().width(), width);
    m_title->setGeometry(frame, frame, titleWidth, titleHeight);
    const QSize beside = m_beside ? m_beside->sizeHint() : QSize(0, 0);
    m_caption->setGeometry(frame, frame + titleHeight, width - beside.width(),
                           m_caption->sizeHint().height());
    if (m_beside)
        m_beside->setGeometry(QRect({frame + width - beside.width(), frame + titleHeight}, beside));
    m_headWidth = width;
    placeReading();
}

/// Beside the title; where it is too long for that, in the caption's place, so that the chart below stays
/// where it is.
void ChartView::placeReading()
{
    const QRect title = m_title->geometry();
    const int left = title.right() + 1 + headGap;
    const int room = std::max(0, frame + m_headWidth - left);
    const QRect caption = m_caption->geometry();
    const int wanted = m_reading->sizeHint().width();
    const bool hasLine = m_beside || !m_caption->text().isEmpty();
    const bool isBelow = !m_reading->text().isEmpty() && wanted > room && hasLine && caption.width() > room;
    m_caption->setVisible(!isBelow);
    m_reading->setAlignment((isBelow ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    if (isBelow)
        m_reading->setGeometry(caption.left(), caption.top(), caption.width() - headGap, caption.height());
    else
        m_reading->setGeometry(left, title.top(), room, title.height());
}

void ChartView::restyle()
{
    const ChartStyle style = ChartStyle::onScreen(this);
    m_ground = style.ground;
    m_title->setFont(style.title);
    setStyle(style);
}

void ChartView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        restyle();
        arrange();
    }
}

void ChartView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

/// The panel's colours come with the style, when the view comes to the screen.
void ChartView::showEvent(QShowEvent *event)
{
    restyle();
    arrange();
    QWidget::showEvent(event);
}

void ChartView::paintEvent(QPaintEvent *)
{
    // A part that scrolls does not tell that the colour of the panel behind it has changed.
    if (ChartStyle::groundOf(this) != m_ground) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                restyle();
                arrange();
            },
            Qt::QueuedConnection);
    }
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(ThemeRole::strong), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 8, 8);
}

void ChartView::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    if (!hasFocus())
        nameNothing();
}

void ChartView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    nameFirst();
}

void ChartView::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    if (!underMouse())
        nameNothing();
}
