// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturetiles.h"

#include <QHash>

class PhotoShelf;
class PictureQueue;
struct Photo;
struct Program;

/// The pictures of what is shown, by the numbers of their records.
class PhotoTiles final : public PictureTiles
{
    Q_OBJECT
public:
    PhotoTiles(const Program &program, const PhotoShelf &shelf, const PictureQueue &queue,
               QObject *parent = nullptr);

    /// Shows these, in this order. False: they were shown already.
    bool setRecords(const QList<int> &records);
    const QList<int> &records() const { return m_records; }
    int recordAt(int row) const { return m_records.value(row); }
    /// -1 where it is not shown.
    int rowOf(int record) const { return m_rows.value(record, -1); }
    /// What is known of these is something else.
    void follow(const QList<int> &records);

    /// What pictures are while they are dragged.
    static QString dragFormat() { return QStringLiteral("application/x-quillery-pictures"); }

    WantedPicture picture(int row) const override;
    Tile tile(int row) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override { return {dragFormat()}; }
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

private:
    QString withSign(const QString &words, const QString &between, const Photo &photo) const;

    const Program &m_program;
    const PhotoShelf &m_shelf;
    const PictureQueue &m_queue;
    QList<int> m_records;
    QHash<int, int> m_rows;
};
