// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/searchoverlay.h"

#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/everythingbox.h"
#include "shell/look/theme.h"

#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPointer>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int padding = 12;
constexpr int widest = 680;
constexpr int corner = 10;

/// The menu of the bar that has this name.
QMenu *menuOf(const QMainWindow &window, const QString &name)
{
    for (QAction *entry : window.menuBar()->actions()) {
        if (entry->menu() && entry->objectName() == name)
            return entry->menu();
    }
    return nullptr;
}

void addToMenu(const QMainWindow &window, QAction *command)
{
    for (const QString &name : {u"mE"_s, u"mG"_s}) {
        if (QMenu *menu = menuOf(window, name)) {
            menu->addSeparator();
            menu->addAction(command);
            return;
        }
    }
    if (QMenu *menu = menuOf(window, u"mO"_s)) { // where Exit stands last, behind its line
        const QList<QAction *> entries = menu->actions();
        QAction *exit = entries.isEmpty() ? nullptr : entries.last();
        menu->insertAction(exit, command);
        menu->insertSeparator(exit);
    }
}

} // namespace

SearchOverlay::SearchOverlay(Program &program, QMainWindow *window)
    : QWidget(window)
    , m_window(window)
    , m_box(new EverythingBox(program, this))
{
    setObjectName(u"searchOverlay"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(padding, padding, padding, padding);
    layout->addWidget(m_box);
    connect(m_box, &EverythingBox::left, this, &QWidget::hide);
    window->installEventFilter(this);
    hide();
}

void SearchOverlay::open()
{
    place();
    show();
    raise();
    m_box->start();
}

/// At the top of the work, in the middle.
void SearchOverlay::place()
{
    const QRect room = m_window->centralWidget() ? m_window->centralWidget()->geometry() : m_window->rect();
    const int width = std::min(widest, room.width() - 2 * padding);
    setGeometry(room.center().x() - width / 2, room.top() + padding, width, sizeHint().height());
}

bool SearchOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Resize && isVisible())
        place();
    return QWidget::eventFilter(watched, event);
}

void SearchOverlay::paintEvent(QPaintEvent *)
{
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.edge);
    painter.setBrush(theme.bar);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

void SearchOverlay::addCommand(Program &program, Commands &commands, QMainWindow *window,
                               const std::function<bool()> &mayOpen)
{
    const auto overlay = std::make_shared<QPointer<SearchOverlay>>(); // made when first asked for
    const auto open = [=, &program] {
        if (!mayOpen())
            return;
        if (!*overlay)
            *overlay = new SearchOverlay(program, window);
        (*overlay)->open();
    };
    QAction *command = commands.add(nullptr, u"searchEverything"_s, u"Search E&verything"_s, open, {},
                                    CommonKeys::everything);
    addToMenu(*window, command);
}
