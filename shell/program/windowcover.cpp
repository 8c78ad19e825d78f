// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/windowcover.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int signSize = 72;
constexpr int signFrom = 260; ///< height of the cover
constexpr int lineFrom = 170;

QString coveredTitle()
{
    return u"Protected"_s;
}

} // namespace

WindowCover::WindowCover(QWidget &window, std::function<void()> unlock)
    : QWidget(&window)
    , m_window(window)
    , m_unlock(std::move(unlock))
    , m_title(window.windowTitle())
    , m_focus(window.focusWidget())
    , m_sign(new QLabel(this))
    , m_word(makeHeading(coveredTitle(), this))
    , m_line(makeQuietLabel(u"Type the password, and everything is here as you left it."_s, this))
    , m_button(makeButton(u"coverUnlock"_s, u"Unlock..."_s, this, ButtonKind::Main))
{
    setObjectName(u"cover"_s);
    setAutoFillBackground(true);
    setPalette(Theme::of(this).panelPalette());
    layOut();
    hideContent();
    window.setWindowTitle(coveredTitle());
    qApp->installEventFilter(this);
    connect(m_button, &QPushButton::clicked, this, [this] {
        const auto unlockIt = m_unlock; // this cover may go meanwhile
        unlockIt();
    });
    setGeometry(window.rect());
    show();
    raise();
    m_button->setFocus();
}

void WindowCover::layOut()
{
    m_sign->setPixmap(
        Icons::pixmap("password-control"_L1, Theme::of(this).scheme, signSize, devicePixelRatioF()));
    m_line->setWordWrap(true);
    m_line->setAlignment(Qt::AlignCenter);
    m_button->setAutoDefault(true);
    auto *rows = new QVBoxLayout(this);
    rows->setSpacing(12);
    rows->addStretch();
    rows->addWidget(m_sign, 0, Qt::AlignHCenter);
    rows->addWidget(m_word, 0, Qt::AlignHCenter);
    rows->addWidget(m_line);
    rows->addWidget(m_button, 0, Qt::AlignHCenter);
    rows->addStretch();
}

/// What floats over a main window, as a picker does, goes for good.
void WindowCover::hideContent()
{
    const auto *mainWindow = qobject_cast<QMainWindow *>(&m_window);
    const QList<QWidget *> parts = m_window.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *part : parts) {
        if (part == this || part->isWindow() || part->isHidden())
            continue;
        if (!mainWindow || part == mainWindow->menuWidget() || part == mainWindow->centralWidget() ||
            qobject_cast<QStatusBar *>(part))
            m_hidden.append(part);
        part->hide();
    }
}

QWidget *WindowCover::lift()
{
    keepFocus();
    qApp->removeEventFilter(this);
    m_window.setWindowTitle(m_title);
    for (const QPointer<QWidget> &part : m_hidden) {
        if (part)
            part->show();
    }
    hide();
    setParent(nullptr);
    deleteLater();
    return m_focus;
}

WindowCover *WindowCover::over(const QWidget &window)
{
    return window.findChild<WindowCover *>(u"cover"_s, Qt::FindDirectChildrenOnly);
}

/// No key of the window does anything behind the cover.
bool WindowCover::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

bool WindowCover::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != &m_window)
        return isBehind(watched) && takeKey(*event);
    switch (event->type()) {
    case QEvent::Resize:
        setGeometry(m_window.rect());
        return false;
    case QEvent::WindowTitleChange:
        keepTitle();
        return false;
    case QEvent::WindowActivate:
        keepFocus(); // the button is given it now
        return false;
    case QEvent::Close:
        // A box asks something that nobody sees; a window of a function asks for the password by itself.
        if (!qobject_cast<QDialog *>(&m_window))
            return false;
        event->ignore();
        return true;
    default:
        return takeKey(*event);
    }
}

bool WindowCover::isBehind(const QObject *part) const
{
    const auto *widget = qobject_cast<const QWidget *>(part);
    return widget && widget->window() == &m_window && widget != this && !isAncestorOf(widget);
}

/// A part that is given the focus behind the cover gets the keys, hidden as it is: they belong to the button.
bool WindowCover::takeKey(QEvent &event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride:
        event.accept();
        return true;
    case QEvent::KeyPress:
        keepFocus();
        m_button->setFocus();
        keyPressEvent(static_cast<QKeyEvent *>(&event));
        return true;
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
        return true;
    default:
        return false;
    }
}

/// A new title is for later.
void WindowCover::keepTitle()
{
    if (m_window.windowTitle() == coveredTitle())
        return;
    m_title = m_window.windowTitle();
    m_window.setWindowTitle(coveredTitle());
}

/// What a window that goes on behind its cover gives the focus to is for later, too.
void WindowCover::keepFocus()
{
    QWidget *given = m_window.focusWidget();
    if (given && given != this && !isAncestorOf(given))
        m_focus = given;
}

void WindowCover::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_button->click();
    event->accept();
}

/// Over a small box there is room for the word and the button.
void WindowCover::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_sign->setVisible(height() >= signFrom);
    m_line->setVisible(height() >= lineFrom);
}
