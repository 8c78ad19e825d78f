#pragma once

#include "addressbook/model/addressviewer.h"
#include "shell/frame/functionwindow.h"
#include "shell/pictures/picturecopies.h"

class ButtonRow;
class PictureFrame;
class PictureGallery;
class QLabel;
class QMenu;
class QPushButton;
class QStackedWidget;

/// The family's pictures with their names, page by page.
class ADDBKDISPLAY2 final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit ADDBKDISPLAY2(Program &program, QWidget *parent = nullptr);
    ~ADDBKDISPLAY2() override;

protected:
    Page page(const PageSetup &setup) const override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QWidget *makeGalleryPage();
    QWidget *makeEnlargedPage();
    QWidget *makeButtonRow(QWidget *parent);
    void makeMenus();
    QAction *addCommand(QMenu *menu, const QString &name, const QString &caption,
                        void (ADDBKDISPLAY2::*command)());

    void readBook();
    int pageCount() const;
    std::vector<NamedPicture> picturesOfPage() const;
    void showPage(int page);
    void refreshProgress();
    void warn();
    void enlarge(const QString &stored, const QString &name);
    void enlargeCurrent();
    void leaveEnlarged();
    void printPage();
    void showCopies();
    void stop();
    void openBackup();
    void showHelp();
    void choosePanelColor();

    AddressViewer m_viewer;
    std::vector<NamedPicture> m_pictures;
    int m_page = 0; ///< from 0
    bool m_hasWarned = false;

    PictureCopies *m_copies;
    PictureLoader *m_enlarger;
    QStackedWidget *m_pages = nullptr;
    QWidget *m_galleryPage = nullptr;
    QWidget *m_enlargedPage = nullptr;
    PictureGallery *m_gallery = nullptr;
    PictureFrame *m_enlarged = nullptr;
    QLabel *m_enlargedName = nullptr;
    QLabel *m_pageNumber = nullptr;
    QLabel *m_total = nullptr;
    QPushButton *m_previous = nullptr;
    QPushButton *m_next = nullptr;
    QPushButton *m_enlargeButton = nullptr;
    QPushButton *m_normalButton = nullptr;
    QAction *m_printAction = nullptr;
    QAction *m_panelColorAction = nullptr;
    QAction *m_helpAction = nullptr;
};
