// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/comparison.h"

#include "backup/window/comparedcopy.h"
#include "backup/window/copypasswordbox.h"
#include "backup/window/householdsources.h"
#include "shell/access/gate.h"
#include "shell/access/passwordcheck.h"
#include "shell/core/threadedstep.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QPointer>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

/// The records of a function in both versions.
struct Comparison::Pair {
    QString function;
    std::unique_ptr<FunctionRecords> here;
    std::unique_ptr<FunctionRecords> there;
    RecordDifferences differences{};
};

Comparison::Comparison(Program &program, QWidget *window)
    : QObject(window)
    , m_program(program)
    , m_window(window)
    , m_step(new ThreadedStep(this))
{}

Comparison::~Comparison()
{
    if (m_copy)
        m_copy->isStopped = true;
}

bool Comparison::isBusy() const
{
    return m_step->isRunning();
}

void Comparison::open(const Source &source)
{
    if (m_copy)
        m_copy->isStopped = true;
    m_copy.reset();
    m_pairs.reset();
    m_rows.clear();
    m_guarded.clear();
    m_refusal.clear();
    m_isUncovered = false;
    emit looked();
    if (source.snapshot.isEmpty() && !source.set)
        return;
    m_copy = std::make_shared<ComparedCopy>();
    const auto unpack = [source, copy = m_copy] {
        if (!copy->folder.make(PrivateFolder::Content::Open, 0)) {
            copy->opened.refusal = u"The folder for temporary files takes nothing"_s;
            return;
        }
        const QString into = copy->folder.path();
        copy->opened = source.set ? OpenedCopy::ofSet(*source.set, into, copy->isStopped)
                                  : OpenedCopy::ofSnapshot(source.snapshot, into, copy->isStopped);
        copy->readAreas();
    };
    m_step->start(unpack, [this, copy = m_copy] {
        if (copy == m_copy)
            compare();
    });
}

void Comparison::show(const std::shared_ptr<ComparedCopy> &copy)
{
    open({});
    m_copy = copy;
    compare();
}

void Comparison::look()
{
    if (m_copy && !isBusy())
        compare();
}

bool Comparison::isHidden(Function function) const
{
    const FunctionFace &face = FunctionFaces::of(function);
    const bool isGuardedHere =
        face.isGuarded(m_program.state.protectedAreas) && !m_program.gate.wasPassed(face.area);
    return !m_isUncovered && (isGuardedHere || face.isGuarded(m_copy->areas));
}

void Comparison::addPairs(std::vector<Pair> &pairs)
{
    m_guarded.clear();
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = m_program.functions.entry(face.function);
        const QString key = HouseholdSources::key(face.function);
        if (!entry || !entry->records || !m_copy->opened.functions.contains(key))
            continue;
        if (isHidden(face.function)) {
            if (m_guarded.isEmpty())
                m_area = face.area;
            m_guarded.append(face.titleText());
            continue;
        }
        Pair pair{key, entry->records(m_program, m_program.folder),
                  entry->records(m_program, DataFolder(m_copy->folder.path()))};
        if (pair.here && pair.there)
            pairs.push_back(std::move(pair));
    }
}

void Comparison::compare()
{
    m_refusal = m_copy->opened.refusal;
    m_pairs = std::make_shared<std::vector<Pair>>();
    addPairs(*m_pairs);
    m_step->start(
        [pairs = m_pairs, copy = m_copy] {
            for (Pair &pair : *pairs) {
                if (!copy->isStopped)
                    pair.differences = RecordDifferences::of(*pair.here, *pair.there);
            }
        },
        [this, pairs = m_pairs] {
            if (pairs == m_pairs)
                take(*pairs);
        });
}

void Comparison::take(const std::vector<Pair> &pairs)
{
    m_rows.clear();
    for (const Pair &pair : pairs) {
        for (const RecordDifferences::Item &item : pair.differences.items)
            m_rows.push_back({pair.function, item});
    }
    emit looked();
}

const Comparison::Pair *Comparison::pairOf(const QString &function) const
{
    if (!m_pairs || isBusy())
        return nullptr;
    const auto found = std::ranges::find(*m_pairs, function, &Pair::function);
    return found == m_pairs->end() ? nullptr : &*found;
}

Comparison::Versions Comparison::versions(const Row &row) const
{
    const Pair *pair = pairOf(row.function);
    return pair ? Versions{pair->there->lines(row.record.key), pair->here->lines(row.record.key)}
                : Versions();
}

QString Comparison::whyNotUncovered() const
{
    return m_guarded.isEmpty() ? u"Nothing here is guarded"_s : QString();
}

void Comparison::uncover()
{
    if (!whyNotUncovered().isEmpty() || !mayUncover())
        return;
    m_isUncovered = true;
    look();
}

/// Where no password is set here, what the copy guards is shown behind the copy's own.
bool Comparison::mayUncover()
{
    const PasswordCheck here(m_program.folder, PasswordCost::interactive(), &m_program.gate.memory());
    if (here.state() != PasswordCheck::State::NotSet)
        return m_program.gate.mayUncover(m_program, m_area, m_window);
    const DataFolder folder(m_copy->folder.path());
    const PasswordCheck copy(folder);
    CopyPasswordBox box(
        m_program, u"This copy is guarded"_s, u"Type the password that was set when it was made."_s,
        [&copy](const QString &password) { return copy.matches(password); }, m_window);
    return m_program.dialogs.run(box) == QDialog::Accepted;
}

void Comparison::bringBack(const std::vector<Row> &rows)
{
    if (!m_pairs || isBusy())
        return;
    std::map<QString, QStringList> keys;
    for (const Row &row : rows) {
        if (row.record.kind != RecordDifferences::OnlyHere)
            keys[row.function].append(row.record.key);
    }
    auto results = std::make_shared<std::vector<RecordsBack>>();
    m_step->start(
        [pairs = m_pairs, keys, results] {
            for (Pair &pair : *pairs) {
                if (const auto wanted = keys.find(pair.function); wanted != keys.end())
                    results->push_back(pair.here->bringBack(*pair.there, wanted->second));
            }
        },
        [this, results] {
            tell(*results);
            look();
        });
}

void Comparison::tell(const std::vector<RecordsBack> &results)
{
    for (const RecordsBack &result : results) {
        if (!result.refusal.isEmpty())
            emit said(result.refusal);
        if (!result.step)
            continue;
        // What it changes is compared once more.
        const auto again = [this](const std::function<ChangeResult()> &way) {
            return [self = QPointer(this), way] {
                const ChangeResult went = way();
                if (self)
                    self->look();
                return went;
            };
        };
        emit done({result.step->title, again(result.step->undo), again(result.step->redo)});
    }
}
