// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/flowtoolbar.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QAction>
#include <QActionEvent>
#include <QLayout>
#include <QPainter>
#include <QToolButton>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int toolHeight = 36;
constexpr int tallToolHeight = 60;
constexpr int gap = 4;
constexpr QMargins barMargins(9, 4, 9, 5);
constexpr QMargins tallBarMargins(4, 4, 4, 4);
constexpr int separatorWidth = 17;
constexpr int tallPadding = 4;

/// A thin line between two groups, vertical in a horizontal bar.
class Separator final : public QWidget
{
public:
    Separator(Qt::Orientation bar, QWidget *parent)
        : QWidget(parent)
        , m_bar(bar)
    {}

    QSize sizeHint() const override
    {
        return m_bar == Qt::Horizontal ? QSize(separatorWidth, toolHeight)
                                       : QSize(toolHeight, separatorWidth);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QColor line = palette().color(ThemeRole::line);
        if (m_bar == Qt::Horizontal)
            painter.fillRect(width() / 2, 8, 1, height() - 16, line);
        else
            painter.fillRect(8, height() / 2, width() - 16, 1, line);
    }

private:
    Qt::Orientation m_bar;
};

} // namespace

/// Places the items of a bar in rows; a vertical bar is one column.
class FlowToolBar::Layout final : public QLayout
{
public:
    Layout(Qt::Orientation orientation, QWidget *parent)
        : QLayout(parent)
        , m_orientation(orientation)
    {
        setContentsMargins(barMargins);
    }
    ~Layout() override
    {
        while (QLayoutItem *item = takeAt(0))
            delete item;
    }

    void setEqualWidths(int maximum)
    {
        m_maximumWidth = maximum;
        invalidate();
    }
    /// Puts `widget` before the item at `index`; behind the last one when there is no such item.
    void insert(qsizetype index, QWidget *widget)
    {
        addChildWidget(widget);
        m_items.insert(index < 0 ? m_items.size() : index, new QWidgetItem(widget));
        invalidate();
    }

    void invalidate() override
    {
        m_widest = -1;
        QLayout::invalidate();
    }
    void addItem(QLayoutItem *item) override { m_items.append(item); }
    int count() const override { return int(m_items.size()); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override
    {
        return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
    }
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return m_orientation == Qt::Horizontal; }
    int heightForWidth(int width) const override { return place(QRect(0, 0, width, 0), Measure); }

    void setGeometry(const QRect &rect) override
    {
        QLayout::setGeometry(rect);
        place(rect, Move);
    }

    QSize sizeHint() const override
    {
        QSize size;
        const bool isHorizontal = m_orientation == Qt::Horizontal;
        const int gaps = (isHorizontal ? gapWidth() : gap) * std::max(0, count() - 1);
        for (const QLayoutItem *item : m_items) {
            const QSize hint = item->sizeHint();
            size = isHorizontal
                       ? QSize(size.width() + widthOf(item, 0), std::max(size.height(), hint.height()))
                       : QSize(std::max(size.width(), hint.width()), size.height() + hint.height());
        }
        size += isHorizontal ? QSize(gaps, 0) : QSize(0, gaps);
        return size.grownBy(contentsMargins());
    }

    /// One button: the bar may always become narrower.
    QSize minimumSize() const override
    {
        QSize size(0, 0);
        for (const QLayoutItem *item : m_items)
            size = size.expandedTo(item->sizeHint());
        const QSize whole = sizeHint();
        return m_orientation == Qt::Horizontal ? size.grownBy(contentsMargins())
                                               : QSize(whole.width(), whole.height());
    }

private:
    enum Action { Measure, Move };

    static const QToolButton *buttonOf(const QLayoutItem *item)
    {
        return qobject_cast<const QToolButton *>(const_cast<QLayoutItem *>(item)->widget());
    }
    static bool isButton(const QLayoutItem *item) { return buttonOf(item); }

    /// Equal buttons stand close: each has room of its own.
    int gapWidth() const { return m_maximumWidth > 0 ? 0 : gap; }

    /// With equal widths the widest button decides, and `room` for each, if there is more.
    int widthOf(const QLayoutItem *item, int room) const
    {
        if (m_maximumWidth == 0 || !isButton(item))
            return item->sizeHint().width();
        return std::max(widestWord(), std::min(room, m_maximumWidth));
    }

    /// Measured once for each change of the items: a layout asks for it again and again.
    int widestWord() const
    {
        if (m_widest < 0) {
            m_widest = 0;
            for (const QLayoutItem *item : m_items)
                if (const auto *button = buttonOf(item))
                    m_widest = std::max(m_widest, button->fontMetrics().horizontalAdvance(button->text()) +
                                                      2 * tallPadding);
        }
        return m_widest;
    }

    /// The width that each button could have if all stood in one row.
    int roomForEach(int width) const
    {
        int buttons = 0;
        for (const QLayoutItem *item : m_items) {
            if (isButton(item))
                ++buttons;
            else
                width -= item->sizeHint().width();
        }
        return buttons > 0 ? (width - gapWidth() * (count() - 1)) / buttons : 0;
    }

    /// The height that the items take within `rect`.
    int place(const QRect &rect, Action action) const
    {
        const QRect area = rect.marginsRemoved(contentsMargins());
        return (m_orientation == Qt::Horizontal ? placeRows(area, action) : placeColumn(area, action)) -
               rect.y() + contentsMargins().bottom();
    }

    int placeColumn(const QRect &area, Action action) const
    {
        int y = area.y();
        for (QLayoutItem *item : m_items) {
            const QSize size(area.width(), item->sizeHint().height());
            if (action == Move)
                item->setGeometry(QRect(QPoint(area.x(), y), size));
            y += size.height() + gap;
        }
        return y - gap;
    }

    /// A separator that would begin or end a row is not drawn.
    int placeRows(const QRect &area, Action action) const
    {
        const int room = m_maximumWidth > 0 ? roomForEach(area.width()) : 0;
        const int rowHeight = tallest();
        int x = area.x(), y = area.y();
        for (qsizetype i = 0; i < m_items.size(); ++i) {
            QLayoutItem *item = m_items[i];
            QSize size(widthOf(item, room), rowHeight);
            int end = x + size.width();
            if (!isButton(item) && i + 1 < m_items.size())
                end += gapWidth() + widthOf(m_items[i + 1], room);
            if (x > area.x() && end > area.x() + area.width()) {
                x = area.x();
                y += rowHeight + gap;
            }
            if (!isButton(item) && x == area.x())
                size = QSize(0, 0);
            if (action == Move)
                item->setGeometry(QRect(QPoint(x, y), size));
            if (!size.isEmpty())
                x += size.width() + gapWidth();
        }
        return y + rowHeight;
    }

    int tallest() const
    {
        int height = 0;
        for (const QLayoutItem *item : m_items)
            height = std::max(height, item->sizeHint().height());
        return height;
    }

    Qt::Orientation m_orientation;
    int m_maximumWidth = 0;
    mutable int m_widest = -1; ///< not measured
    QList<QLayoutItem *> m_items;
};

FlowToolBar::FlowToolBar(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
    , m_layout(new Layout(orientation, this))
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(orientation == Qt::Horizontal);
    setSizePolicy(policy);
    QPalette colors;
    colors.setColor(QPalette::Window, Theme::of(this).bar);
    setPalette(colors);
    setAutoFillBackground(true);
    setAccessibleName(u"Toolbar"_s);
}

FlowToolBar::~FlowToolBar() = default;

void FlowToolBar::setToolButtonStyle(Qt::ToolButtonStyle style)
{
    m_style = style;
    m_layout->setContentsMargins(style == Qt::ToolButtonTextUnderIcon ? tallBarMargins : barMargins);
    for (QToolButton *button : std::as_const(m_buttons))
        styleButton(*button);
}

void FlowToolBar::setIconSize(int pixels)
{
    m_iconSize = pixels;
    for (QToolButton *button : std::as_const(m_buttons))
        styleButton(*button);
}

void FlowToolBar::setEqualWidths(int maximum)
{
    m_layout->setEqualWidths(maximum);
}

QAction *FlowToolBar::addSeparator()
{
    auto *separator = new QAction(this);
    separator->setSeparator(true);
    addAction(separator);
    return separator;
}

void FlowToolBar::clear()
{
    const QList<QAction *> all = actions();
    for (QAction *action : all) {
        removeAction(action);
        if (action->isSeparator() && action->parent() == this)
            delete action;
    }
}

void FlowToolBar::actionEvent(QActionEvent *event)
{
    QAction *action = event->action();
    if (event->type() == QEvent::ActionAdded) {
        QWidget *before = event->before() ? m_items.value(event->before()) : nullptr;
        QWidget *item = makeItem(action);
        m_layout->insert(before ? m_layout->indexOf(before) : -1, item);
        item->setVisible(action->isVisible());
    } else if (event->type() == QEvent::ActionRemoved) {
        m_buttons.remove(action);
        if (QWidget *item = m_items.take(action)) {
            m_layout->removeWidget(item);
            item->hide();
            item->deleteLater(); // the action may have been taken off by its own button's click
        }
    } else if (QWidget *item = m_items.value(action)) {
        item->setVisible(action->isVisible());
        // The button hears of the change after its bar and takes the action's own word then.
        if (QToolButton *button = m_buttons.value(action))
            QMetaObject::invokeMethod(
                button, [this, button] { styleButton(*button); }, Qt::QueuedConnection);
    }
    updateGeometry();
}

void FlowToolBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor line = palette().color(ThemeRole::line);
    if (m_orientation == Qt::Horizontal)
        painter.fillRect(0, height() - 1, width(), 1, line);
}

QWidget *FlowToolBar::makeItem(QAction *action)
{
    if (action->isSeparator()) {
        auto *separator = new Separator(m_orientation, this);
        m_items.insert(action, separator);
        return separator;
    }
    auto *button = named(new QToolButton(this), action->objectName() + u"_button"_s);
    button->setDefaultAction(action);
    button->setFocusPolicy(Qt::TabFocus);
    // Of equal widths: a button fills the place that it is given.
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    styleButton(*button);
    m_buttons.insert(action, button);
    m_items.insert(action, button);
    return button;
}

void FlowToolBar::styleButton(QToolButton &button) const
{
    const bool tall = m_style == Qt::ToolButtonTextUnderIcon;
    button.setProperty("tall",
                       tall); // before the first polish; the sheet gives tall ones less room at the sides
    const QString word = button.defaultAction()->iconText();
    button.setToolButtonStyle(m_style);
    button.setIconSize(QSize(m_iconSize, m_iconSize));
    button.setFont(tall ? TypeScale::label() : TypeScale::body());
    // Fusion sets icon and word too close.
    button.setText(m_style == Qt::ToolButtonTextBesideIcon ? u' ' + word : word);
    button.setAccessibleName(word);
    button.setFixedHeight(tall ? std::max(tallToolHeight, button.fontMetrics().height() + m_iconSize + 16)
                               : std::max(toolHeight, button.fontMetrics().height() + 14));
}
