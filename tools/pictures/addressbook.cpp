// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void takeView(PictureSession &session)
{
    session.open(Function::AddressBook);
    session.take("address-book-view");
    session.click("Command7");
    session.key(Qt::Key_Down);
    session.take("picture-panel");
    session.key(Qt::Key_Escape);
    session.click("Command5");
    session.take("print-options");
    session.key(Qt::Key_Escape);
    session.box([&] { session.click("Command3"); },
                [&] {
                    session.key(Qt::Key_Backtab, Qt::ShiftModifier); // from No to Yes
                    session.key(Qt::Key_Space);
                });
    session.take("address-book-deleted");
    session.trigger("mEBack");
    session.take("bring-back-deleted");
    session.key(Qt::Key_Return);
    session.box([&] { session.trigger("mOC"); }, [&] { session.take("panel-color"); });

    session.trigger("mOPrt");
    session.take("page-preview");
    session.click("SSCommand80_1");
    session.take("page-preview-landscape");
    session.box([&] { session.click("SSCommand80_3"); }, [&] { session.take("message-copied"); });
    session.key(Qt::Key_Escape);

    session.click("Command4");
    session.fill("Text1_5", u"Lund"_s);
    session.take("address-book-modify");
    session.box([&] { session.click("Command6"); }, [&] { session.take("message-save-changes"); });
}

void takeEntry(PictureSession &session)
{
    session.open(Function::AddressBook);
    session.click("Command6");
    session.fill("Text1_0", u"Novak"_s);
    session.key(Qt::Key_Tab);
    session.type(u"Jana"_s);
    session.key(Qt::Key_Tab);
    session.take("address-book-date");
    session.key(Qt::Key_Escape);
    session.type(u"24 Nov 1978"_s);
    session.click("Command7");
    session.key(Qt::Key_Down);
    session.key(Qt::Key_Down);
    session.click("pictureEnter");
    session.take("address-book-entry");
    session.fill("Text1_5", u"Lund"_s);
    session.click("sameAddress");
    session.type(u"ann"_s);
    session.take("address-book-same-address");
}

} // namespace

void Albums::addressBook(const Camera &camera)
{
    {
        PictureSession session(camera);
        takeView(session);
    }
    PictureSession session(camera);
    takeEntry(session);
}

void Albums::addressPages(const Camera &camera)
{
    PictureSession session(camera);
    session.open(Function::AddressBook);
    session.trigger("mOPrt");
    session.takePage("address-page-entry");
    session.trigger("mOW");
    session.takePage("address-page-worksheet");
    session.key(Qt::Key_Escape);
    session.trigger("mOLab");
    session.click("tickAll");
    session.fill("labelRight", u"5"_s);
    session.take("address-book-labels");
    session.key(Qt::Key_Escape);
    session.click("Command5");
    for (const auto &[button, name] :
         {std::pair("print2", "address-page-2"), std::pair("print4", "address-page-4"),
          std::pair("print8", "address-page-8")}) {
        session.click(button);
        session.takePage(name);
        session.key(Qt::Key_Escape);
    }
}
