// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/differences.h"
#include "backup/model/setlist.h"
#include "shell/core/programstate.h"
#include "shell/program/functions.h"

#include <QObject>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>
#include <vector>

class ThreadedStep;
class QWidget;
struct ComparedCopy;
struct Program;

/// A snapshot beside what the household has now, function by function. It is unpacked into a folder of its
/// own, and read on a thread. What is guarded, here or in the snapshot, is looked at behind the password
/// only.
class Comparison final : public QObject
{
    Q_OBJECT
public:
    /// A record that differs.
    struct Row {
        QString function; ///< its name in the files: "AddressBook"
        RecordDifferences::Item record{};

        bool operator==(const Row &) const = default;
    };
    /// A record in both versions, a line for each thing that it says.
    struct Versions {
        QStringList there;
        QStringList here;
    };

    Comparison(Program &program, QWidget *window);
    ~Comparison() override;

    /// What is looked into: a snapshot or, without a path, a set that can be read at once.
    struct Source {
        QString snapshot{}; ///< its path
        std::optional<BackupSet> set{};
    };

    /// With an empty source, nothing is looked into.
    void open(const Source &source);
    /// Looks into a copy that was opened already.
    void show(const std::shared_ptr<ComparedCopy> &copy);
    /// Compares once more.
    void look();

    bool isBusy() const;
    /// A sentence for the user where the copy, or a part of it, cannot be looked into.
    const QString &refusal() const { return m_refusal; }
    const std::vector<Row> &rows() const { return m_rows; }
    Versions versions(const Row &row) const;

    /// The functions that are guarded, as their cards call them: they are not among the rows.
    const QStringList &guarded() const { return m_guarded; }
    /// Why the password cannot be asked for; empty where it can.
    QString whyNotUncovered() const;
    /// Asks for the password, and looks at the guarded ones too where it is given.
    void uncover();

    /// Brings records back, each function's in one step.
    void bringBack(const std::vector<Row> &rows);

signals:
    /// It is compared, or cannot be.
    void looked();
    /// What came back can be taken back.
    void done(const UndoStep &step);
    void said(const QString &line);

private:
    struct Pair;

    void compare();
    bool isHidden(Function function) const;
    bool mayUncover();
    void addPairs(std::vector<Pair> &pairs);
    void take(const std::vector<Pair> &pairs);
    void tell(const std::vector<RecordsBack> &results);
    const Pair *pairOf(const QString &function) const;

    Program &m_program;
    QWidget *m_window;
    std::shared_ptr<ComparedCopy> m_copy;
    std::shared_ptr<std::vector<Pair>> m_pairs;
    std::vector<Row> m_rows;
    QStringList m_guarded;
    QString m_refusal;
    int m_area = 0; ///< of the first guarded function
    bool m_isUncovered = false;
    ThreadedStep *m_step;
};
