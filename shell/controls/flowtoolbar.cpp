// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/flowtoolbar.h"

#include "shell/controls/controls.h"
#include "shell/controls/enterkey.h"
#include "shell/controls/lowwindow.h"
#include "shell/controls/morebutton.h"
#include "shell/controls/toolrows.h"
#include "shell/look/theme.h"

#include <QAction>
#include <QActionEvent>
#include <QPainter>
#include <QToolButton>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int toolHeight = 36;
constexpr int tallToolHeight = 60;
constexpr int separatorWidth = 17;

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

FlowToolBar::FlowToolBar(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_orientation(orientation)
    , m_layout(new ToolRows(orientation, this))
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(orientation == Qt::Horizontal);
    setSizePolicy(policy);
    QPalette colors;
    colors.setColor(QPalette::Window, Theme::of(this).bar);
    setPalette(colors);
    setAutoFillBackground(true);
    setAccessibleName(u"Toolbar"_s);
    if (orientation == Qt::Horizontal) {
        m_low = new LowWindow(this);
        m_more = new MoreButton(this);
        m_layout->insert(-1, m_more);
        connect(m_low, &LowWindow::changed, this, &FlowToolBar::fit);
    }
}

FlowToolBar::~FlowToolBar() = default;

void FlowToolBar::setToolButtonStyle(Qt::ToolButtonStyle style)
{
    m_style = style;
    m_layout->setTall(style == Qt::ToolButtonTextUnderIcon);
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
        m_layout->insert(m_layout->indexOf(before ? before : m_more), item);
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
    fit();
}

bool FlowToolBar::event(QEvent *event)
{
    const bool isDone = QWidget::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        fit();
    return isDone;
}

void FlowToolBar::giveWay(const QAction *action)
{
    m_givingWay.append(action);
    fit();
}

QList<QWidget *> FlowToolBar::itemsOf(const QList<QAction *> &tools) const
{
    QList<QWidget *> items;
    for (const QAction *tool : tools)
        items << m_items.value(tool);
    return items;
}

QList<QAction *> FlowToolBar::withoutGivingWay(const QList<QAction *> &tools) const
{
    QList<QAction *> left = tools;
    const auto isOneRow = [&] {
        QList<QWidget *> items = itemsOf(left);
        if (left.size() < tools.size())
            items << m_more;
        return m_layout->countInRow(items, m_more) == items.size();
    };
    for (const QAction *action : m_givingWay) {
        if (isOneRow())
            break;
        left.removeIf([action](const QAction *tool) { return tool == action; });
        // What stood between two separators may be gone.
        for (qsizetype i = left.size() - 1; i >= 0; --i) {
            if (left[i]->isSeparator() && (i == 0 || left[i - 1]->isSeparator()))
                left.removeAt(i);
        }
    }
    return isOneRow() ? left : tools; // a second row has room for all
}

/// In a low window the tools take one row, and "More" has those that find no room in it.
void FlowToolBar::fit()
{
    if (!m_low)
        return;
    QList<QAction *> held = actions();
    held.removeIf([](const QAction *action) { return !action->isVisible(); });
    const bool isOneRow = m_low->isLow();
    const QList<QAction *> shown =
        isOneRow ? held.first(m_layout->countInRow(itemsOf(held), m_more)) : withoutGivingWay(held);
    for (QAction *tool : std::as_const(held))
        m_items.value(tool)->setVisible(shown.contains(tool));
    held.removeIf([&shown](QAction *tool) { return shown.contains(tool); });
    m_more->hold(held);
    m_layout->setOneRow(isOneRow);
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
    letEnterPress(button);
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
