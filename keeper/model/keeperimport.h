// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keepersummary.h"
#include "shell/core/incomingfile.h"

#include <QHash>

#include <functional>
#include <optional>
#include <vector>

/// An entry that is to come in, and what will become of it.
struct IncomingEntry {
    enum State {
        New,
        Differs, ///< the entry `there` is of the same account, and something in it is otherwise
        Same,    ///< `there` has all of it already
        Twice,   ///< line `twin` of the file is the same
        LeftOut, ///< read, but only taken if somebody says so; `problem` says why
        NotRead  ///< `problem` says why
    };

    int number = 0; ///< of its line, from 1
    KeeperEntry entry{};
    State state = NotRead;
    QByteArray there{};
    int twin = 0;
    QString problem{};
    QString remark{}; ///< what of it cannot be kept
    bool isChosen = false;
};

/// Entries of another program on their way into the keeper: what is new, what is there already and in what it
/// differs. Reads from memory alone and writes nothing.
class KeeperImport : public IncomingFile
{
public:
    /// The columns of the preview.
    enum Column {
        Title,
        UserName,
        Password,
        Address,
        OneTimeSecret,
        Notes,
        Tags,
        Expires,
        Kind,
        Member,
        Favourite,
        ColumnCount
    };

    /// What the keeper has, without the trash; `open` gives an entry with its secrets.
    struct There {
        QList<KeeperSummary> entries{};
        std::function<std::optional<KeeperEntry>(const QByteArray &id)> open{};
    };

    /// One text of an entry that is there beside that of the file.
    struct Beside {
        QString caption;
        QString there;
        QString inFile;
        bool isSecret = false;
        bool differs = false;

        bool operator==(const Beside &) const = default;
    };

    static constexpr qsizetype mostBytes = qsizetype(64) * 1024 * 1024;

    /// "All lines", "New", ...: the filters that `isIn()` counts through.
    static QStringList filters();

    /// Why nothing of the file can be taken, with the line that is to blame; empty as long as it can.
    const QString &refusal() const { return m_refusal; }

    std::size_t lineCount() const override { return m_lines.size(); }
    QStringList headings() const override;
    bool isNumber(int /*column*/) const override { return false; }
    int lineNumber(std::size_t line) const override { return m_lines[line].number; }
    /// A secret is dots.
    QString cell(std::size_t line, int column) const override;
    QString whatBecomesOf(std::size_t line) const override;
    bool isIn(std::size_t line, int filter) const override;
    bool mayBeTaken(std::size_t line) const override;
    bool isChosen(std::size_t line) const override { return m_lines[line].isChosen; }
    void setChosen(std::size_t line, bool isChosen) override;
    int chosenCount() const override { return m_chosen; }

    const IncomingEntry &line(std::size_t line) const { return m_lines[line]; }
    /// The line beside the entry that is there, text by text; without one, what the file has alone.
    QList<Beside> beside(std::size_t line) const;

    /// What the ticked lines make: new entries without an id, and entries that are there with what the file
    /// has otherwise, to be saved as their next versions.
    QList<KeeperEntry> result() const;

protected:
    explicit KeeperImport(There there);

    /// Looks what is there of it, and adds it.
    void add(IncomingEntry line);
    void addUnread(int number, const QString &problem);
    /// Gives the file up; what was read is dropped.
    void refuse(const QString &why);
    void clear();

private:
    void findThere(IncomingEntry &line) const;
    /// The entry that is there with what `incoming` has.
    static KeeperEntry merged(KeeperEntry there, const KeeperEntry &incoming);

    There m_there;
    QMultiHash<QString, qsizetype> m_byAccount; ///< places among the entries that are there
    QHash<QByteArray, int> m_read;              ///< line numbers by a hash of what they hold
    std::vector<IncomingEntry> m_lines;
    QString m_refusal;
    int m_chosen = 0;
};
