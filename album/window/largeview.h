// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/titledview.h"
#include "shell/pictures/picturequeue.h"

class PhotoShelf;
class PictureCanvas;
class QLabel;
struct Photo;
struct Program;

/// One picture large, with what is said of it below, on the way through all that are shown.
class LargeView final : public TitledView
{
    Q_OBJECT
public:
    LargeView(const Program &program, const PhotoShelf &shelf, const QString &thumbnails,
              QWidget *parent = nullptr);

    /// Shows the picture of this record, and from it on goes through `records`.
    void show(const QList<int> &records, int record);
    /// Goes to the picture of this record, where it is one of them.
    void choose(int record);
    /// What is known of the pictures, or which there are, is something else.
    void followShelf(const QList<int> &records);
    /// 0 where there is none.
    int record() const { return m_records.value(m_row); }
    PictureCanvas &canvas() const { return *m_canvas; }
    /// Whole, or each pixel as one of the screen.
    void turnZoom();

    void step(int by);
    void goToEnd(bool isLast);

signals:
    /// Another picture is shown.
    void stepped(int record);
    void zoomChanged();
    /// The person has seen enough of what was there before the first, or behind the last one.
    void said(const QString &line);

protected:
    void refresh() override;
    void hideEvent(QHideEvent *event) override;

private:
    void goTo(int row);
    void want();
    void showPicture();
    void showWords();

    const Program &m_program;
    const PhotoShelf &m_shelf;
    PictureQueue m_queue;
    QList<int> m_records;
    int m_row = -1;
    QLabel *m_count;
    PictureCanvas *m_canvas;
    QLabel *m_words;
};
