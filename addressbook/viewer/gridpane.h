// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/viewer/addressgrid.h"

#include <QWidget>

class GridView;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QSettings;
struct Program;

/// The rows of the viewer in their grid: what stands under it, which entry is current while rows come and go,
/// and the width of the names.
class GridPane final : public QWidget
{
    Q_OBJECT
public:
    explicit GridPane(Program &program, QWidget *parent = nullptr);

    const AddressViewer &viewer() const { return m_rows->viewer(); }
    /// The current row; -1 when no entry is under it.
    int row() const;
    AddressGrid::Identity current() const { return m_rows->identity(row()); }
    /// What stands beside the current name; empty when there is none.
    QString information() const { return row() < 0 ? QString() : viewer().information(row()); }

    // Why a command cannot be used on the rows as they are now; nothing when it can.
    QString whyNoRows() const;
    QString whyNoRow() const;
    QString whyNoEntry() const;
    QString whyNoOrder() const; ///< by information
    QString whyNoCall() const;
    QString whyNoMail() const;

    /// The rows of `range`; of a long book the first ones are painted before the rest is read.
    void load(Information information, const DisplayRange &range);
    void loadRest();
    /// Reads the same rows anew, once all of them are there.
    void reload();
    /// Shows only rows with `text`; an empty one shows all.
    void search(const QString &text);
    /// By the column of a heading; once more the other way round. Below 0 the order of the records.
    void sortBy(int column);
    /// Takes the entry off the grid. False: it is not there any more.
    bool remove(const AddressGrid::Identity &entry);
    /// Brings it back, as the current one. False: it is there, or was read anew since.
    bool bringBack(const AddressGrid::Identity &entry);

signals:
    void rowsChanged();
    void currentChanged();
    /// "Current Display Mode: ..." as it stands on the button now.
    void modeChanged(const QString &caption);
    void modeRequested();
    void opened();
    void linkFollowed(const QString &text);

private:
    /// Why other rows come into the grid.
    enum class Arrival {
        Others,
        Rest,  ///< of a long book
        Reload ///< the same rows, as the files have them now
    };

    QWidget *makeFoot();
    void connectGrid();
    void keepPlace();
    void followRows();
    void refresh();
    void refreshMode();
    void rememberNameColumn();
    int mostNameColumn() const;
    void placeNameColumn();

    QSettings &m_store;
    AddressGrid *m_rows;
    GridView *m_grid;
    QWidget *m_rowsAndFoot = nullptr;
    QWidget *m_emptyBook = nullptr; ///< stands in their place while nobody is in the book
    QLabel *m_count = nullptr;
    QPushButton *m_mode = nullptr;
    QHBoxLayout *m_foot = nullptr; ///< holds the count and the mode
    bool m_isLoaded = false;       ///< all rows, and not the first ones alone
    Arrival m_arrival = Arrival::Others;
    AddressGrid::Identity m_kept; ///< current before other rows came
    int m_keptColumn = 0;
    int m_nameColumn = 0;     ///< its width as the user chose it; 0 while it suits the window
    bool m_isPlacing = false; ///< the columns get their widths, and not from the user
};
