// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/cardspanel.h"

#include "album/window/keepinglines.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/tablework.h"

#include <QDir>
#include <QHeaderView>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

QString hint()
{
    return u"New pictures are copied into the household's Pictures, by year and month. Nothing on the card "
           u"is "
           u"changed or deleted."_s;
}

std::vector<TableColumn<CardImport::Card>> columns()
{
    return {{u"Card"_s, Qt::AlignLeft, [](const CardImport::Card &card) { return card.name; }},
            {u"Pictures"_s, Qt::AlignLeft,
             [](const CardImport::Card &card) { return KeepingLines::card(card.fresh.size(), card.known); }},
            {u"Folder"_s, Qt::AlignLeft,
             [](const CardImport::Card &card) { return QDir::toNativeSeparators(card.folder); }}};
}

} // namespace

CardsPanel::CardsPanel(CardImport &cards, QWidget *parent)
    : WalkPanel(u"cardsPanel"_s, u"Bring In from a Card"_s, parent)
    , m_cards(cards)
    , m_what(makeQuietLabel({}, this))
    , m_model(new RowsModel<CardImport::Card>(columns(), this))
    , m_view(named(new QTableView(this), u"cardsList"_s))
    , m_again(nullptr)
    , m_take(nullptr)
{
    m_what->setWordWrap(true);
    m_view->setModel(m_model);
    auto *work = new TableWork(m_what, m_view, u"Cards and telephones"_s, this);
    for (const int column : {0, 1, 2})
        m_view->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    setWalkWork(work);
    m_again = addButton(u"cardsAgain"_s, u"Loo&k Again"_s);
    m_take = addButton(u"cardsTake"_s, KeepingLines::copyIn(0), ButtonKind::Main);
    setLeave(setLeaveButton(u"cardsClose"_s, u"C&lose"_s));
    setFocusProxy(m_view);
    connect(m_again, &QPushButton::clicked, this, &CardsPanel::start);
    connect(m_take, &QPushButton::clicked, this, &CardsPanel::take);
    connect(work, &TableWork::entered, this, &CardsPanel::take);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &CardsPanel::follow);
    connect(&m_cards, &CardImport::finished, this, &CardsPanel::finish);
}

void CardsPanel::start()
{
    showWalk(0, 0);
    m_model->setRows({});
    m_what->setText(u"Looking at what is plugged in..."_s);
    follow();
    m_cards.start();
}

void CardsPanel::finish()
{
    if (!isWalking())
        return;
    endWalk();
    const auto &cards = m_cards.cards();
    m_model->setRows(cards);
    m_what->setText(cards.empty() ? KeepingLines::noCards() : hint());
    if (!cards.empty())
        m_view->setCurrentIndex(m_model->index(0, 0));
    follow();
}

void CardsPanel::follow()
{
    const QModelIndex current = m_view->currentIndex();
    const qsizetype count = current.isValid() ? m_model->row(current.row()).fresh.size() : 0;
    m_take->setText(KeepingLines::copyIn(count));
    buttonRow().rearrange();
    setUnavailable(m_take, count > 0 ? QString() : u"There is nothing new to copy"_s);
    setUnavailable(m_again, isWalking() ? u"It is being looked at"_s : QString());
}

void CardsPanel::take()
{
    const QModelIndex current = m_view->currentIndex();
    if (isWalking() || !current.isValid() || m_model->row(current.row()).fresh.isEmpty())
        return;
    const QStringList files = m_model->row(current.row()).fresh;
    leave();
    emit wanted(files);
}

void CardsPanel::stopWalk()
{
    m_cards.stop();
}
