// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class MonthCells;
class QDropEvent;
class QImage;
class QMimeData;

/// Takes a picture that is dropped on the sheet of a month, or pasted there, for its photo.
class PhotoDrop final : public QObject
{
    Q_OBJECT
public:
    /// Belongs to `cells`.
    explicit PhotoDrop(MonthCells &cells);

signals:
    void fileTaken(const QString &file);
    void imageTaken(const QImage &image);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool drop(QDropEvent &event);
    bool take(const QMimeData *data);
};
