// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/cardimport.h"
#include "album/model/findagain.h"
#include "album/window/albumdesk.h"

#include <QObject>

class AlikePanel;
class CardsPanel;
class PhotoExportPanel;
class FindAgainPanel;
class QAction;
class QMenu;
class ShelfCare;

/// Finds pictures again, looks for those alike, gives some out and brings some in from cards.
class KeepCommands final : public QObject
{
    Q_OBJECT
public:
    KeepCommands(const AlbumDesk &desk, ShelfCare &care, QString thumbnails, QObject *parent);

    void addCommands(QMenu *pictures);
    QAction *findCommand() const { return m_findCommand; }
    /// Offers what is new on cards and telephones that are plugged in. Call when there is time for it.
    void offerCards();
    void openCards();

signals:
    void said(const QString &line);
    /// Pictures were linked anew, which can be taken back.
    void linked(const QString &line);
    /// New pictures are on a card: a line that leads to them.
    void cardsOffered(const QString &line);

private:
    FindAgain::Others others() const;
    QString nameOfShown() const;
    void openFind();
    void openAlike();
    void openExport();
    template <typename Panel>
    void open(Panel *panel);

    AlbumDesk m_desk;
    ShelfCare &m_care;
    QString m_thumbnails;
    CardImport m_cards;
    bool m_isOffering = false;
    QAction *m_findCommand = nullptr;
    FindAgainPanel *m_find = nullptr;
    AlikePanel *m_alike = nullptr;
    PhotoExportPanel *m_export = nullptr;
    CardsPanel *m_cardsPanel = nullptr;
};
