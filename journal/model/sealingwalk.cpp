// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/sealingwalk.h"

#include "journal/model/journalfiles.h"
#include "journal/model/journalform.h"
#include "storage/saving.h"

SealingWalk::SealingWalk(JournalSeal &seal)
    : m_seal(seal)
{
    if (!m_seal.isOpen() || m_seal.folder().isReadOnly())
        return;
    for (const int year : JournalFiles::years(m_seal.folder())) {
        if (workOf(m_seal.beginningOf(year)) != Work::None)
            m_years.append(year);
    }
    // The last step of opening takes the key file, also where a walk was cut short before it.
    if (m_years.isEmpty() && m_seal.isBeingOpened())
        m_isSealGone = m_seal.removeSeal();
}

SealingWalk::Work SealingWalk::workOf(QByteArrayView bytes) const
{
    if (!SealedYear::isSealed(bytes)) {
        const bool isToBeSealed =
            !m_seal.isBeingOpened() && JournalForm::formOf(bytes) == JournalForm::Form::Plain;
        return isToBeSealed ? Work::Seal : Work::None;
    }
    if (SealedYear::isLater(bytes) || m_seal.isOfAnotherSeal(bytes))
        return Work::None;
    if (m_seal.isBeingOpened())
        return Work::Open;
    return m_seal.isHeadInForce(bytes) ? Work::None : Work::Renew;
}

bool SealingWalk::step()
{
    if (m_done >= m_years.size())
        return false;
    const int year = m_years[m_done++];
    if (!walk(year))
        m_refused.append(year);
    if (m_done == m_years.size() && m_seal.isBeingOpened() && m_refused.isEmpty() && m_heldBack.isEmpty())
        m_isSealGone = m_seal.removeSeal();
    return m_done < m_years.size();
}

bool SealingWalk::isComplete() const
{
    return m_done == m_years.size() && m_refused.isEmpty() && m_heldBack.isEmpty() &&
           (m_isSealGone || !m_seal.isBeingOpened());
}

QStringList SealingWalk::leftUnsealed(const DataFolder &folder)
{
    QStringList left = JournalFiles::names(folder);
    left.removeIf([&folder](const QString &name) {
        const std::optional<QByteArray> bytes = JournalFiles::read(folder, name);
        if (!bytes)
            return false;
        const bool isReached =
            JournalFiles::isOfYear(name) && JournalForm::formOf(*bytes) == JournalForm::Form::Plain;
        return isReached || bytes->isEmpty() || SealedYear::isSealed(*bytes);
    });
    return left;
}

QStringList SealingWalk::leftSealed(const DataFolder &folder)
{
    QStringList left = JournalFiles::names(folder);
    left.removeIf([&folder](const QString &name) {
        const std::optional<QByteArray> bytes = JournalFiles::read(folder, name);
        return !bytes || !SealedYear::isSealed(*bytes);
    });
    return left;
}

bool SealingWalk::walk(int year)
{
    const std::optional<QByteArray> bytes = JournalFiles::read(m_seal.folder(), year);
    if (!bytes || !m_seal.isOpen())
        return false;
    switch (workOf(*bytes)) {
    case Work::Seal:
        return seal(year, *bytes);
    case Work::Open:
        return open(year, *bytes);
    case Work::Renew:
        return renew(year, *bytes);
    case Work::None:
        break;
    }
    return true;
}

/// Only what opens again to the very bytes of the plain file takes its place.
bool SealingWalk::seal(int year, const QByteArray &bytes)
{
    const QByteArray sealed = SealedYear::sealed(year, bytes, m_seal.head(), m_seal.key());
    return replace(year, sealed, bytes, bytes);
}

bool SealingWalk::open(int year, const QByteArray &bytes)
{
    const SealedYear opened(year, bytes, m_seal.key());
    if (opened.holdsBack()) {
        m_heldBack.append(year);
        return true;
    }
    return replace(year, opened.plain(), opened.plain(), bytes);
}

bool SealingWalk::renew(int year, const QByteArray &bytes)
{
    const QByteArray renewed = SealedYear::withHead(bytes, m_seal.head());
    const SealedYear opened(year, bytes, m_seal.key());
    return replace(year, renewed, opened.plain(), bytes);
}

/// Replaces `former`, where the file still holds it, by `content`, which says `plain`.
bool SealingWalk::replace(int year, const QByteArray &content, const QByteArray &plain,
                          const QByteArray &former)
{
    const DataFolder &folder = m_seal.folder();
    return Saving::replaceFile(folder, JournalFiles::name(year), content, [&](const QByteArray &written) {
        const bool isSealed = SealedYear::isSealed(written);
        const bool isRight =
            written == content && (!isSealed || SealedYear(year, written, m_seal.key()).plain() == plain);
        return isRight && JournalFiles::read(folder, year) == former;
    });
}
