// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/everythingbox.h"

#include "shell/controls/searchbox.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/searchhits.h"
#include "shell/frame/searchmodel.h"
#include "shell/program/program.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowsPerPage = 8;
constexpr int gap = 4;
/// Free at the foot of the window.
constexpr int foot = 12;
constexpr int narrowest = 360;

} // namespace

EverythingBox::EverythingBox(Program &program, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_box(new SearchBox(u"everythingSearch"_s, u"Search everything"_s,
                          u"Finds people, appointments and whatever else the functions hold (Ctrl+K)"_s,
                          this))
    , m_model(new SearchModel(program, this))
    , m_hits(new SearchHits(m_model, this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_box);
    setFocusProxy(m_box);
    m_hits->hide();
    m_box->installEventFilter(this);
    connect(m_box, &QLineEdit::textChanged, this, &EverythingBox::look);
    connect(m_model, &SearchModel::modelReset, this, &EverythingBox::showHits);
    connect(m_hits, &SearchHits::chosen, this, &EverythingBox::open);
}

void EverythingBox::start()
{
    if (!isVisible())
        return; // something else stands in its place
    if (!m_box->hasFocus())
        m_focusBefore = window()->focusWidget();
    m_box->startAgain();
}

void EverythingBox::look(const QString &text)
{
    m_model->setText(text);
    showHits();
}

void EverythingBox::showHits()
{
    if (m_model->rowCount() == 0 || !m_box->hasFocus()) {
        m_hits->hide();
        return;
    }
    m_hits->setCurrentRow(m_model->choosable(0, 1));
    tellCurrent();
    placeHits();
    m_hits->show();
    m_hits->raise();
}

/// For those who hear the screen: the focus is in the box.
void EverythingBox::tellCurrent()
{
    const QModelIndex current = m_model->index(std::max(0, m_hits->currentRow()));
    m_box->setAccessibleDescription(current.data(Qt::AccessibleTextRole).toString());
}

/// Below the box, over everything in the window; a child of that, so that it needs no window of its own and
/// the focus stays in the box.
void EverythingBox::placeHits()
{
    if (m_hits->parentWidget() != window()) {
        m_hits->setParent(window());
        window()->installEventFilter(this);
    }
    const QRect room = window()->rect().adjusted(gap, 0, -gap, -foot);
    const QPoint corner = m_box->mapTo(window(), QPoint(0, m_box->height() + gap));
    const int width = std::min(std::max(m_box->width(), narrowest), room.width());
    const int left = std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() + 1 - width));
    const int height = std::min(m_hits->sizeHint().height(), room.bottom() + 1 - corner.y());
    m_hits->setGeometry(left, corner.y(), width, height);
}

bool EverythingBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_box && event->type() == QEvent::KeyPress) {
        const auto *press = static_cast<QKeyEvent *>(event);
        return press->modifiers() == (press->modifiers() & Qt::KeypadModifier) && takeKey(press->key());
    }
    if (watched == m_box && event->type() == QEvent::FocusIn)
        showHits();
    if (watched == m_box && event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            m_hits->hide();
            emit left();
        }
    }
    if (watched == window() && event->type() == QEvent::Resize && m_hits->isVisible())
        placeHits();
    return QWidget::eventFilter(watched, event);
}

bool EverythingBox::takeKey(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        leave();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_hits->step(key == Qt::Key_Up ? -1 : 1);
        tellCurrent();
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        m_hits->step(key == Qt::Key_PageUp ? -rowsPerPage : rowsPerPage);
        tellCurrent();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_hits->isVisible())
            open(m_hits->currentRow());
        return true;
    default:
        return false;
    }
}

void EverythingBox::open(int row)
{
    if (row < 0)
        return;
    if (m_model->kind(row) == SearchModel::More) {
        m_model->showAll(row);
        m_hits->setCurrentRow(row); // the first of those that were not shown
        return;
    }
    const Function function = m_model->function(row);
    const Place place = m_model->place(row);
    leave();
    emit m_program.changes.placeRequested(function, place);
}

void EverythingBox::leave()
{
    m_box->clear();
    m_hits->hide();
    if (m_focusBefore && m_focusBefore->isVisible())
        m_focusBefore->setFocus();
    else
        focusNextChild();
    m_focusBefore.clear();
    emit left();
}

void EverythingBox::hideEvent(QHideEvent *event)
{
    m_hits->hide();
    QWidget::hideEvent(event);
}
