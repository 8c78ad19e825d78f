// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/albumexport.h"
#include "album/window/walkpanel.h"

class ElidedLabel;
class QCheckBox;
class QComboBox;
class QLabel;
class QRadioButton;
struct Program;

/// "Export": pictures given away as copies in a folder, originals or smaller ones, with what is said of them
/// in the files.
class PhotoExportPanel final : public WalkPanel
{
    Q_OBJECT
public:
    PhotoExportPanel(const Program &program, PhotoShelf &shelf, QWidget *window, QWidget *parent = nullptr);

    /// `name` is what is given out: "Grandmother".
    void start(const QString &name, const QList<int> &photos);

signals:
    void said(const QString &line);

protected:
    void stopWalk() override;

private:
    void fill(QWidget *content);
    QWidget *makeFolderRow(QWidget *content);
    void chooseFolder();
    void setFolder(const QString &folder);
    void follow();
    void run();
    void finish(const AlbumExport::Result &result);

    const Program &m_program;
    QWidget *m_window;
    AlbumExport m_export;
    QList<int> m_photos;
    QString m_folder;
    QLabel *m_what;
    QRadioButton *m_originals;
    QRadioButton *m_smaller;
    QComboBox *m_side;
    QCheckBox *m_texts;
    QCheckBox *m_noPlace;
    QPushButton *m_choose;
    ElidedLabel *m_folderName;
    QPushButton *m_run;
};
