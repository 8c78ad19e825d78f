// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/slideorder.h"
#include "shell/core/programstate.h"
#include "shell/pictures/picturequeue.h"
#include "shell/program/screenawake.h"

#include <QImage>
#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

class PhotoShelf;
class QScreen;
class SlideBar;
struct Photo;

/// How a slide show runs.
struct SlideOptions {
    static constexpr int leastSeconds = 2;
    static constexpr int mostSeconds = 30;

    int seconds = 5;           ///< that each picture stays
    bool isShuffled = false;   ///< every round in another order
    bool isSoft = true;        ///< one picture passes into the next
    bool hasCaptions = false;  ///< what is said of a picture stands below it
    QScreen *screen = nullptr; ///< null: the one that the mouse is on
};

/// Pictures one after the other over a whole screen, round after round until Esc. The next one is read while
/// one looks at this one; the screen stays on. It deletes itself at its end.
class SlideShow final : public QWidget
{
    Q_OBJECT
public:
    SlideShow(const PhotoShelf &shelf, const QString &thumbnails, DateStyle style,
              const SlideOptions &options);
    ~SlideShow() override;

    /// Shows `photos`, beginning with `first` where that is one of them; those that are to be left out of
    /// slide shows are.
    void start(const QList<int> &photos, int first = 0);
    /// Those of the pictures that a slide show has.
    static QList<int> shown(const PhotoShelf &shelf, const QList<int> &photos);

    int current() const { return m_order.current(); }
    bool isPaused() const { return m_isPaused; }

public slots:
    void goOn();
    void goBack();
    void setPaused(bool isPaused);
    void setCaptions(bool areShown);

signals:
    /// It is over; the picture that was seen last.
    void ended(int photo);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void bring();
    void take(int id, const QImage &image, PictureQueue::Look look);
    void leaveOut(int id);
    void present(int id, const QImage &image, bool isWhole);
    void tell(const Photo &photo);
    void waitForNext();
    bool goByKey(int key);
    void paintPicture(QPainter &painter, const QImage &image, double opacity) const;
    void paintCaption(QPainter &painter) const;

    const PhotoShelf &m_shelf;
    DateStyle m_style;
    SlideOptions m_options;
    SlideOrder m_order{{}, SlideOrder::Kind::AsTheyStand};
    PictureQueue m_queue;
    ScreenAwake m_awake;
    QTimer m_timer; ///< `Timer1`: until the next picture
    QTimer m_rest;  ///< until the mouse is hidden
    QVariantAnimation m_change;
    SlideBar *m_bar;
    int m_presented = 0; ///< the picture that is on the screen
    QImage m_picture;
    QImage m_before; ///< what it takes the place of
    QString m_words; ///< in the place of a picture
    bool m_isPaused = false;
};
