// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/restoredemands.h"

#include "backup/model/copiedfile.h"
#include "backup/model/restoremessages.h"
#include "backup/model/restorerule.h"
#include "backup/window/copypasswordbox.h"
#include "backup/window/diskwork.h"
#include "backup/window/householdsources.h"
#include "shell/access/gate.h"
#include "shell/core/area.h"
#include "shell/frame/functionwindow.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

RestoreRule::Password stateOf(PasswordCheck::State state)
{
    switch (state) {
    case PasswordCheck::State::NotSet:
        return RestoreRule::Password::None;
    case PasswordCheck::State::Set:
        return RestoreRule::Password::Set;
    case PasswordCheck::State::Damaged:
        return RestoreRule::Password::Damaged;
    }
    Q_UNREACHABLE();
}

/// Whether files of a function are written that answers `is`.
template <typename Is>
bool isAnyWritten(const QList<RestoreItem> &items, Is is)
{
    return std::ranges::any_of(items, [&is](const RestoreItem &item) {
        const std::optional<Function> function = HouseholdSources::function(item.function);
        return item.isWritten() && function && is(FunctionFaces::of(*function));
    });
}

/// Whether files are written of which no function is known, so that one that is guarded may be among them.
bool isAnyUnknown(const QList<RestoreItem> &items)
{
    return std::ranges::any_of(items, [](const RestoreItem &item) {
        return item.isWritten() && item.function == Holdings::others &&
               item.file.name.endsWith(u".fil"_s, Qt::CaseInsensitive);
    });
}

/// The file of the password among what a backup has.
std::optional<RestoreItem> passwordItem(const QList<RestoreItem> &items)
{
    const auto found = std::ranges::find_if(items, [](const RestoreItem &item) {
        return item.function == Holdings::password && item.effect != RestoreEffect::OnlyHere;
    });
    return found == items.end() ? std::nullopt : std::optional(*found);
}

} // namespace

PasswordCheck RestoreDemands::passwordHere() const
{
    return PasswordCheck(m_desk.program.folder, PasswordCost::interactive(), &m_desk.program.gate.memory());
}

bool RestoreDemands::areMet(RestoreRun::Order &order, const Wanted &wanted) const
{
    QByteArray copy;
    if (const auto item = passwordItem(wanted.items)) {
        const auto content =
            CopiedFile::read(*wanted.backup.source, order.set, item->file, order.drive, m_desk.work);
        if (!content)
            return false;
        // What is damaged in the backup cannot be told.
        copy = content->isEmpty() && item->file.size > 0 ? QByteArray("damaged") : *content;
    }
    bool isMet = false;
    m_desk.work.doHere([&] { isMet = areMetHere(order, wanted, copy); });
    return isMet;
}

bool RestoreDemands::areMetHere(RestoreRun::Order &order, const Wanted &wanted, const QByteArray &copy) const
{
    const PasswordCheck::Content content = PasswordCheck::parsed(copy);
    RestoreRule::Case known;
    known.here = stateOf(passwordHere().state());
    known.copy = stateOf(content.state);
    const std::optional<RestoreItem> item = passwordItem(wanted.items);
    known.isSame = item && item->effect == RestoreEffect::Same;
    known.isFileChosen = wanted.isFileChosen;
    known.isGuardedByCopy =
        isAnyWritten(order.items,
                     [&content](const FunctionFace &face) { return face.isGuarded(content.areas); }) ||
        (content.areas.isAnyProtected() && isAnyUnknown(order.items));
    known.isGuardable =
        isAnyWritten(order.items, [](const FunctionFace &face) { return face.area != Area::None; }) ||
        isAnyUnknown(order.items);
    const RestoreRule::Demand demand = RestoreRule::of(known);
    if (!demand.refusal.isEmpty()) {
        m_desk.program.dialogs.ask(&m_desk.window, RestoreMessages::refused(demand.refusal));
        return false;
    }
    if (demand.takesFile && item)
        order.items.prepend(*item);
    return !demand.asksCopy || isGiven(copy);
}

/// Asks for the password that is set in the backup's file.
bool RestoreDemands::isGiven(const QByteArray &copy) const
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QString::fromLatin1(SettingsKeys::passwordFile.name)));
    if (!file.open(QIODevice::WriteOnly) || file.write(copy) != copy.size())
        return false;
    file.close();
    const DataFolder place(folder.path());
    CopyPasswordBox box(
        m_desk.program, u"The password of this backup"_s,
        u"This backup was guarded by a password of its own, which comes back with it. Type that one."_s,
        [check = PasswordCheck(place)](const QString &typed) { return check.matches(typed); },
        &m_desk.window);
    return m_desk.program.dialogs.run(box) == QDialog::Accepted;
}
