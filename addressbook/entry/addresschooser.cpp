// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/addresschooser.h"

#include "addressbook/entry/namechoice.h"
#include "addressbook/entry/namelistview.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/searchbox.h"
#include "shell/look/theme.h"

#include <QApplication>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int greatestWidth = 480;
constexpr int rowsShown = 7;
constexpr int gap = 8;
/// At the window's foot, where it would cover the status bar.
constexpr int foot = 32;
} // namespace

AddressChooser::AddressChooser(QWidget *window, Tell tell)
    : QFrame(window)
    , m_tell(std::move(tell))
    , m_names(new NameChoice(this))
    , m_search(new SearchBox(u"sameAddressSearch"_s, u"Whose address?"_s,
                             u"Type a part of a name; Enter takes the address of the marked one"_s, this))
    , m_view(named(new NameListView(this), u"sameAddressNames"_s))
    , m_gives(named(new QLabel(this), u"sameAddressGives"_s))
    , m_replaces(named(new QLabel(this), u"sameAddressReplaces"_s))
    , m_words(new QWidget(this))
{
    setObjectName(u"sameAddressPanel"_s);
    setAttribute(Qt::WA_StyledBackground);
    setAccessibleName(u"Same address as"_s);
    m_view->setModel(m_names);
    m_view->setAccessibleName(u"Names"_s);
    m_view->setFocusPolicy(Qt::NoFocus); // the box keeps the focus; its arrows walk the list
    m_view->setMinimumHeight(0);
    makeWords();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(6);
    layout->addWidget(m_search);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_words);
    m_search->installEventFilter(this);
    window->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, this, &AddressChooser::narrow);
    connect(m_search, &QLineEdit::returnPressed, this, &AddressChooser::choose);
    connect(m_view, &QListView::clicked, this, &AddressChooser::choose);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &AddressChooser::tell);
    hide();
}

/// An address, its telephone number and all, takes two lines at most.
void AddressChooser::makeWords()
{
    auto *column = new QVBoxLayout(m_words);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    for (QLabel *label : {m_gives, m_replaces}) {
        label->setFont(TypeScale::label());
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        column->addWidget(label);
    }
    column->addStretch(1);
    m_words->setFixedHeight(4 * QFontMetrics(TypeScale::label()).lineSpacing() + column->spacing());
}

void AddressChooser::open(QWidget *opener, const NameList &names, int first, int without)
{
    m_opener = opener;
    const Theme &theme = Theme::of(window());
    setPalette(theme.panelPalette());
    setStyleSheet(u"#sameAddressPanel { background: %1; border: 1px solid %2; border-radius: 10px; }"_s.arg(
        theme.panel.name(), theme.edge.name()));
    QPalette due = m_replaces->palette();
    due.setColor(QPalette::WindowText, theme.due);
    m_replaces->setPalette(due);
    m_names->offer(names, first, without);
    m_search->clear();
    narrow();
    place();
    show();
    raise();
    m_search->setFocus(Qt::PopupFocusReason);
    qApp->installEventFilter(this);
}

void AddressChooser::dismiss()
{
    if (!isVisible())
        return;
    qApp->removeEventFilter(this);
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    hide();
    if (hadFocus)
        m_opener->setFocus(Qt::OtherFocusReason);
}

/// Below what opened it; as high as its rows need, and inside the window.
void AddressChooser::place()
{
    const QRect opener(m_opener->mapTo(parentWidget(), QPoint(0, 0)), m_opener->size());
    const QRect room = parentWidget()->rect().adjusted(gap, gap, -gap, -gap - foot);
    const int wanted =
        m_search->sizeHint().height() + rowsShown * ListRowDelegate::rowHeight() + m_words->height() + 48;
    const QSize size = QSize(greatestWidth, wanted).boundedTo(room.size());
    const int left = std::clamp(opener.right() - size.width(), room.left(), room.right() + 1 - size.width());
    const int top = std::clamp(opener.bottom() + 4, room.top(), room.bottom() + 1 - size.height());
    setGeometry(QRect(QPoint(left, top), size));
}

void AddressChooser::narrow()
{
    m_names->narrow(m_search->text().trimmed());
    const QModelIndex first = m_names->index(0);
    m_view->setCurrentIndex(first);
    if (!first.isValid())
        tell({});
}

void AddressChooser::tell(const QModelIndex &current)
{
    if (!current.isValid()) {
        m_gives->setText(u"No name holds this text"_s);
        m_replaces->setText({});
        return;
    }
    const Outcome outcome = m_tell(m_names->line(current.row()));
    m_gives->setText(outcome.gives);
    m_replaces->setText(outcome.replaces);
    m_search->setAccessibleDescription(current.data().toString() + u". "_s + outcome.gives + u". "_s +
                                       outcome.replaces);
}

void AddressChooser::choose()
{
    const QString line = m_names->line(m_view->currentIndex().row());
    if (line.isEmpty())
        return;
    dismiss();
    emit chosen(line);
}

bool AddressChooser::keyPressed(int key)
{
    const int page = std::max(1, m_view->viewport()->height() / ListRowDelegate::rowHeight() - 1);
    switch (key) {
    case Qt::Key_Escape:
        dismiss();
        return true;
    case Qt::Key_Down:
        moveBy(1);
        return true;
    case Qt::Key_Up:
        moveBy(-1);
        return true;
    case Qt::Key_PageDown:
        moveBy(page);
        return true;
    case Qt::Key_PageUp:
        moveBy(-page);
        return true;
    default:
        return false;
    }
}

void AddressChooser::moveBy(int rows)
{
    if (m_names->rowCount() == 0)
        return;
    const int row = std::clamp(m_view->currentIndex().row() + rows, 0, m_names->rowCount() - 1);
    m_view->setCurrentIndex(m_names->index(row));
}

bool AddressChooser::eventFilter(QObject *watched, QEvent *event)
{
    if (!isVisible())
        return QFrame::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType()) {
        auto *clicked = static_cast<QWidget *>(watched);
        if (clicked != this && !isAncestorOf(clicked))
            dismiss();
    }
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        place();
    if (watched == m_search) {
        if (event->type() == QEvent::ShortcutOverride &&
            static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
            event->accept();
        if (event->type() == QEvent::KeyPress)
            return keyPressed(static_cast<QKeyEvent *>(event)->key());
        if (event->type() == QEvent::FocusOut)
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (!isAncestorOf(QApplication::focusWidget()) && isActiveWindow())
                        dismiss();
                },
                Qt::QueuedConnection);
    }
    return QFrame::eventFilter(watched, event);
}
