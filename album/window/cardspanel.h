// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/cardimport.h"
#include "album/window/walkpanel.h"
#include "shell/controls/rowsmodel.h"

class QLabel;
class QTableView;

/// "Bring In from a Card": the cards and telephones that are plugged in, with how many new pictures each has.
class CardsPanel final : public WalkPanel
{
    Q_OBJECT
public:
    explicit CardsPanel(CardImport &cards, QWidget *parent = nullptr);

    /// Looks at what is plugged in.
    void start();

signals:
    /// These pictures of a card are to be copied into the household's.
    void wanted(const QStringList &files);

protected:
    void stopWalk() override;

private:
    void finish();
    void follow();
    void take();

    CardImport &m_cards;
    QLabel *m_what;
    RowsModel<CardImport::Card> *m_model;
    QTableView *m_view;
    QPushButton *m_again;
    QPushButton *m_take;
};
