// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QComboBox>

using namespace Qt::Literals::StringLiterals;

/// The grid, with each piece of information, and what can be done with its rows.
void Albums::viewer(const Camera &camera)
{
    PictureSession session(camera);
    session.open(Function::AddressViewer);
    constexpr std::array choices{
        std::pair("information_0", "viewer-address"),    std::pair("information_1", "viewer-state"),
        std::pair("information_2", "viewer-home-phone"), std::pair("information_3", "viewer-mobile-phone"),
        std::pair("information_4", "viewer-fax"),        std::pair("information_5", "viewer-email"),
        std::pair("information_6", "viewer-birth"),      std::pair("information_7", "viewer-anniversary"),
        std::pair("information_8", "viewer-names")};
    for (const auto &[choice, name] : choices) {
        session.click(choice);
        session.take(name);
    }
    session.click("information_6");
    session.fill("birthMonth", u"April"_s);
    session.key(Qt::Key_Return);
    session.take("viewer-birthdays");
    session.click("information_7");
    session.fill("anniversaryMonth", u"10"_s);
    session.key(Qt::Key_Return);
    session.take("viewer-anniversaries");

    session.click("range_0");
    session.click("updateDisplay");
    session.click("information_0");
    session.fill("searchText", u"marburg"_s);
    session.take("viewer-search");
    session.fill("searchText", u"zeppelin"_s);
    session.take("viewer-no-matches");
    session.key(Qt::Key_Escape);
    session.clickRow("VSFlexGrid1", 2);
    session.box([&] { session.key(Qt::Key_Delete); }, [&] { session.take("viewer-remove"); });
    session.box([&] { session.trigger("mOExp"); }, [&] { session.take("viewer-export"); });
}

namespace {

/// The print options and the lists that they print.
void takePrintedLists(PictureSession &session)
{
    session.trigger("mOPrt");
    session.take("viewer-print-options");
    session.click("printList");
    session.takePage("viewer-page-list");
    session.key(Qt::Key_Escape);
    session.click("information_1");
    for (const char *option : {"printTelephones", "printAsOf", "printGridLines", "twoColumns"})
        session.click(option);
    session.click("printList");
    session.take("viewer-preview");
    session.takePage("viewer-page-telephones");
    session.key(Qt::Key_Escape);
    session.key(Qt::Key_Escape);
    session.click("information_8");
    session.trigger("mOPrt");
    session.take("viewer-preview-pictures");
    session.takePage("viewer-page-pictures");
    session.key(Qt::Key_Escape);
}

/// Labels, and an envelope.
void takeLabels(PictureSession &session)
{
    session.click("information_0");
    session.trigger("mOLab");
    session.fill("startPosition", u"4"_s);
    session.take("viewer-labels");
    session.takePage("viewer-page-labels", "labelPreview");
    session.focus("labelSheet");
    session.find<QComboBox>("labelSheet").setCurrentText(u"Envelope DL, 220 x 110 mm"_s);
    session.fill("returnAddress", u"Tessa Kessler\n160 High Street\nMarburg"_s);
    session.take("viewer-envelope");
    session.takePage("viewer-page-envelope", "labelPreview");
    session.click("leaveLabels");
}

/// The window of the pictures.
void takePictures(PictureSession &session)
{
    session.box([&] { session.trigger("mOPic"); },
                [&] {
                    session.use("ADDBKDISPLAY2");
                    session.take("viewer-pictures-warning");
                    session.click("answerOk");
                });
    session.take("viewer-pictures");
    session.key(Qt::Key_Right);
    session.key(Qt::Key_Return);
    session.take("viewer-picture-enlarged");
}

} // namespace

/// What takes the place of the grid, and the pages.
void Albums::viewerPanels(const Camera &camera)
{
    PictureSession session(camera);
    session.open(Function::AddressViewer);
    takePrintedLists(session);
    takeLabels(session);
    takePictures(session);
}
