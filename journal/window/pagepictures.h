// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"

#include <QImage>
#include <QObject>

#include <map>

class DataFolder;
class PictureLoader;
class QPainter;
class QRectF;

/// The pictures of the page that is written on: read when they come into sight, and how much room each takes.
class PagePictures final : public QObject
{
    Q_OBJECT
public:
    PagePictures(const DataFolder &folder, QObject *parent);

    void setPictures(const QList<JournalPicture> &pictures);
    const QList<JournalPicture> &pictures() const { return m_pictures; }
    /// None is kept in memory.
    void forget();
    /// In which they have room, with the lines above and below; and how fine the screen is.
    void setRoom(QSize room, qreal pixelRatio);

    bool has(int number) const { return number > 0 && number <= m_pictures.size(); }
    QString caption(int number) const;
    /// In pixels, with what stands above and below; 0 for one that is not there.
    int height(int number) const;
    /// Paints it at the top of `place`, in the painter's pen where there is nothing but its name.
    void paint(QPainter &painter, int number, const QRectF &place);

signals:
    /// The picture takes another room now.
    void changed(int number);

private:
    struct Shown {
        QImage image{}; ///< null until it is read, and where it cannot be
        bool isAsked = false;
        bool isMissing = false;
    };

    QSize sizeOf(const Shown &shown) const;
    void read(const QString &path);

    const DataFolder &m_folder;
    PictureLoader *m_loader;
    QList<JournalPicture> m_pictures;
    std::map<QString, Shown> m_shown; ///< by their paths
    QSize m_room{0, 0};               ///< for one of them
    qreal m_pixelRatio = 1;
};
