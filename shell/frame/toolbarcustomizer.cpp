// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/toolbarcustomizer.h"

#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/core/framelines.h"
#include "shell/core/shellmessages.h"
#include "shell/frame/toolbarlayout.h"
#include "shell/frame/windowplace.h"
#include "shell/look/theme.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int nameRole = Qt::UserRole;
constexpr int iconSize = 20;
constexpr int usualRows = 12;
constexpr int leastRows = 4;
constexpr int roomAroundList = 232;

QListWidget *makeList(const QString &name, QWidget *parent)
{
    auto *list = named(new QListWidget(parent), name);
    setListRows(list);
    list->setIconSize(QSize(iconSize, iconSize));
    const int row = ListRowDelegate::rowHeight();
    const int rows = (WindowPlace::room(*parent).height() - roomAroundList) / row;
    list->setMinimumSize(250, std::clamp(rows, leastRows, usualRows) * row + 8);
    return list;
}

QString hint()
{
    return u"Drag a button to its place, or move it up and down. Changes apply at once."_s;
}

QString nameOf(const QListWidgetItem *item)
{
    return item ? item->data(nameRole).toString() : QString();
}

} // namespace

ToolbarCustomizer::ToolbarCustomizer(ToolbarLayout &layout, QWidget *parent)
    : QDialog(parent)
    , m_layout(layout)
    , m_available(makeList(u"availableList"_s, this))
    , m_shown(makeList(u"shownList"_s, this))
    , m_showOthers(named(new QCheckBox(FrameLines::showOtherEditions(), this), u"showOthers"_s))
    , m_hint(makeQuietLabel(hint(), this))
    , m_add(makeButton(u"addTool"_s, u"&Add"_s, this))
    , m_remove(makeButton(u"removeTool"_s, u"&Remove"_s, this))
    , m_up(makeButton(u"moveToolUp"_s, u"Move &Up"_s, this))
    , m_down(makeButton(u"moveToolDown"_s, u"Move &Down"_s, this))
{
    setObjectName("toolbarCustomizer"_L1);
    setWindowTitle(ShellMessages::customizeToolbarTitle());
    setModal(true);
    setPalette(Theme::of(this).panelPalette());
    // Dropping moves a row within the list; the layout follows it.
    m_shown->setDragDropMode(QAbstractItemView::InternalMove);
    connect(m_shown->model(), &QAbstractItemModel::rowsMoved, this, [this] { applyOrder(); });
    connect(m_add, &QPushButton::clicked, this, &ToolbarCustomizer::addChosen);
    connect(m_remove, &QPushButton::clicked, this, &ToolbarCustomizer::removeChosen);
    connect(m_up, &QPushButton::clicked, this, [this] { moveChosen(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { moveChosen(1); });
    connect(m_available, &QListWidget::itemDoubleClicked, this, &ToolbarCustomizer::addChosen);
    m_showOthers->setVisible(!layout.ofOtherEditions().isEmpty());
    connect(m_showOthers, &QCheckBox::toggled, this, [this] {
        const int row = m_shown->currentRow();
        fill();
        choose(row);
    });
    for (QListWidget *list : {m_available, m_shown})
        connect(list, &QListWidget::currentRowChanged, this, &ToolbarCustomizer::offerButtons);
    arrange();
    fill();
    m_shown->setCurrentRow(shownRowFrom(0, 1));
    m_shown->setFocus();
}

void ToolbarCustomizer::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_available->hasFocus())
        addChosen();
    else if (event->key() == Qt::Key_Delete && m_shown->hasFocus())
        removeChosen();
    else
        QDialog::keyPressEvent(event);
}

void ToolbarCustomizer::arrange()
{
    QPushButton *separator = makeButton(u"addSeparator"_s, u"&Separator"_s, this);
    QPushButton *reset = makeButton(u"resetTools"_s, u"R&eset"_s, this);
    QPushButton *close = makeButton(u"closeCustomizer"_s, u"&Close"_s, this, ButtonKind::Main);
    close->setMinimumWidth(104);
    connect(separator, &QPushButton::clicked, this,
            [this] { insert(QString::fromLatin1(ToolbarLayout::separatorName)); });
    connect(reset, &QPushButton::clicked, this, [this] {
        tell(m_layout.reset());
        fill();
    });
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto *middle = new QVBoxLayout;
    middle->setSpacing(8);
    for (QPushButton *button : {m_add, m_remove, m_up, m_down, separator})
        middle->addWidget(button);
    middle->addStretch();
    auto *foot = new QHBoxLayout;
    foot->addWidget(reset);
    foot->addStretch();
    foot->addWidget(close);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(24, 20, 24, 20);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(6);
    grid->addWidget(makeFieldLabel(u"Available buttons"_s, m_available, this), 0, 0);
    grid->addWidget(makeFieldLabel(u"Buttons on the toolbar"_s, m_shown, this), 0, 2);
    grid->addWidget(m_available, 1, 0);
    grid->addLayout(middle, 1, 1);
    grid->addWidget(m_shown, 1, 2);
    grid->addWidget(m_showOthers, 2, 0, 1, 3);
    grid->addWidget(m_hint, 3, 0, 1, 3);
    grid->setRowMinimumHeight(4, 8);
    grid->addLayout(foot, 5, 0, 1, 3);
}

void ToolbarCustomizer::fill()
{
    const QString chosen = nameOf(m_available->currentItem());
    const int row = m_available->currentRow();
    m_available->clear();
    m_shown->clear();
    const QStringList shown = m_layout.shown();
    for (const QString &name : shown)
        addRow(m_shown, name);
    for (const QAction *action : m_layout.actions()) {
        if (shown.contains(action->objectName()) || isHidden(action->objectName()))
            continue;
        addRow(m_available, action->objectName());
        if (action->objectName() == chosen)
            m_available->setCurrentRow(m_available->count() - 1);
    }
    // The chosen one went to the bar: its neighbour may follow.
    if (m_available->currentRow() < 0 && !chosen.isEmpty())
        m_available->setCurrentRow(std::min(row, m_available->count() - 1));
    if (m_available->count() == 0) // words that cannot be chosen
        (new QListWidgetItem(u"All are on the toolbar"_s, m_available))->setFlags(Qt::NoItemFlags);
    offerButtons();
}

void ToolbarCustomizer::addRow(QListWidget *list, const QString &name)
{
    auto *item = new QListWidgetItem(list);
    item->setData(nameRole, name);
    const Icons::Scheme scheme = Theme::of(this).scheme;
    if (const QAction *action = m_layout.action(name)) {
        item->setText(action->iconText());
        item->setIcon(action->icon());
        item->setToolTip(action->toolTip());
    } else {
        item->setText(u"Separator"_s);
        item->setIcon(Icons::icon("separator"_L1, scheme));
    }
    item->setHidden(isHidden(name)); // where it stands on the bar it keeps its place
}

bool ToolbarCustomizer::isHidden(const QString &name) const
{
    return !m_showOthers->isChecked() && m_layout.ofOtherEditions().contains(name);
}

/// The first row from `row` on, upwards or downwards, that is not hidden; -1 without any.
int ToolbarCustomizer::shownRowFrom(int row, int by) const
{
    while (row >= 0 && row < m_shown->count() && m_shown->item(row)->isHidden())
        row += by;
    return row < m_shown->count() ? row : -1;
}

void ToolbarCustomizer::tell(bool isSaved)
{
    m_isSaved = isSaved;
    m_hint->setText(isSaved ? hint() : FrameLines::settingNotSaved());
}

void ToolbarCustomizer::apply(const QStringList &names, int current)
{
    QWidget *const pressed = focusWidget();
    tell(m_layout.setShown(names));
    fill();
    choose(current);
    // While the lists were filled the button could not be used, and the focus went on to the next one.
    if (pressed && pressed != focusWidget())
        (pressed->isEnabled() ? pressed : pressed == m_add ? m_available : m_shown)->setFocus();
}

/// Chooses `row` of the bar's buttons, or the nearest one.
void ToolbarCustomizer::choose(int row)
{
    row = std::clamp(row, 0, std::max(0, m_shown->count() - 1));
    const int below = shownRowFrom(row, 1);
    m_shown->setCurrentRow(below >= 0 ? below : shownRowFrom(row, -1));
}

QStringList ToolbarCustomizer::order() const
{
    QStringList names;
    for (int row = 0; row < m_shown->count(); ++row)
        names << nameOf(m_shown->item(row));
    return names;
}

void ToolbarCustomizer::applyOrder()
{
    tell(m_layout.setShown(order()));
    offerButtons();
}

void ToolbarCustomizer::insert(const QString &name)
{
    QStringList names = order();
    const int row = m_shown->currentRow() + 1; // behind the chosen one; first where none is chosen
    names.insert(row, name);
    apply(names, row);
}

void ToolbarCustomizer::addChosen()
{
    if (const QString name = nameOf(m_available->currentItem()); !name.isEmpty())
        insert(name);
}

void ToolbarCustomizer::removeChosen()
{
    QStringList names = order();
    const int row = m_shown->currentRow();
    if (row < 0)
        return;
    names.removeAt(row);
    apply(names, row);
}

void ToolbarCustomizer::moveChosen(int by)
{
    QStringList names = order();
    const int row = m_shown->currentRow();
    const int to = shownRowFrom(row + by, by);
    if (row < 0 || to < 0)
        return;
    names.move(row, to);
    apply(names, to);
}

void ToolbarCustomizer::offerButtons()
{
    const int row = m_shown->currentRow();
    const QString choose = u"Choose a button in the list at the right first"_s;
    setUnavailable(m_add, m_available->currentRow() >= 0
                              ? QString()
                              : u"Choose a button in the list at the left first"_s);
    setUnavailable(m_remove, row >= 0 ? QString() : choose);
    setUnavailable(m_up, row < 0                         ? choose
                         : shownRowFrom(row - 1, -1) < 0 ? u"This is the first button"_s
                                                         : QString());
    setUnavailable(m_down, row < 0                        ? choose
                           : shownRowFrom(row + 1, 1) < 0 ? u"This is the last button"_s
                                                          : QString());
}
