// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperimport.h"

#include <QXmlStreamReader>

/// Entries out of the XML that KeePass 2 and its kin write. Groups become tags, all that has no box an own
/// field; earlier versions stay behind.
class KeeperXmlImport final : public KeeperImport
{
public:
    KeeperXmlImport(const QByteArray &bytes, There there);

    bool step() override;
    double progress() const override;

    /// Whether a file of these bytes is read by this class rather than as a table.
    static bool isLikely(const QByteArray &bytes);

private:
    struct Entry;

    void readToken();
    void readGroupPart();
    void readMeta();
    void readEntry();
    void readString(Entry &entry);
    void readTimes(Entry &entry);
    void finish(Entry &entry, int number);
    static void addOwn(KeeperEntry &entry, const QList<KeeperText> &own);
    QStringList groupNames() const;
    bool isInRecycleBin() const;

    struct Group {
        QString name;
        QString id;
    };

    QByteArray m_bytes;
    QXmlStreamReader m_xml;
    QList<Group> m_groups;  ///< around the place that is read, the outermost first
    QString m_recycleBin;   ///< id of the group
    bool m_isKnown = false; ///< the first element was that of such a file
};
