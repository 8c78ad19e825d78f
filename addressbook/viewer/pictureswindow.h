// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressviewer.h"
#include "shell/frame/functionwindow.h"
#include "shell/pictures/storedpicture.h"

class EnlargedPicture;
class PageStepper;
class PictureGallery;
class PicturePrint;
class WorkViews;
class QLabel;

/// The family's pictures with their names, page by page.
class ADDBKDISPLAY2 final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit ADDBKDISPLAY2(Program &program, QWidget *parent = nullptr);
    ~ADDBKDISPLAY2() override;

protected:
    void showEvent(QShowEvent *event) override;
    void filesChanged() override { readBook(); }

private:
    QWidget *makeGalleryPage();
    QWidget *makeFoot();
    void makeMenus();
    QString whyNoPicture() const;

    void readBook();
    int pageCount() const;
    std::vector<NamedPicture> picturesOfPage() const;
    void showPage(int page);
    void showProgress();
    void warn();
    void enlarge(const QString &stored, const QString &name);
    void enlargeCurrent();

    AddressViewer m_viewer;
    std::vector<NamedPicture> m_pictures;
    bool m_hasWarned = false;
    PicturePrint *m_print;
    WorkViews *m_views = nullptr; ///< the gallery, or what stands in its place; one picture over it
    QWidget *m_galleryPage = nullptr;
    QWidget *m_emptyPage = nullptr;
    PageStepper *m_steps = nullptr;
    PictureGallery *m_gallery = nullptr;
    EnlargedPicture *m_enlarged = nullptr;
    QLabel *m_total = nullptr;
};
