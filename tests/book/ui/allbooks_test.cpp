#include "book/ui/bookeditwindow.h"
#include "book/ui/booktableview.h"
#include "book/ui/bookwindow.h"
#include "book/ui/cardwindow.h"
#include "recordbooks/recordbooks.h"
#include "support/testdesktop.h"

namespace tavrel {

namespace {

TEST(AllBooks, haveAWindowForEveryPageAndCard) {
    TestDesktop desktop;
    for (const auto& describe : recordBooks) {
        const BookDescription& description = describe();
        SCOPED_TRACE(description.layoutName);
        const auto book = description.make(desktop.desktop());
        BookWindow window(*book, desktop.desktop());
        window.show();
        book->newRecord();
        BookEditWindow& edit = window.editWindow();
        ASSERT_EQ(static_cast<std::size_t>(edit.pageCount()), description.pages.size());
        const auto& controls = book->form().state().table().controls();
        for (int control = 0; control < static_cast<int>(controls.size()); ++control) {
            const QWidget* widget = edit.pages().widget(control);
            ASSERT_TRUE(widget);
            EXPECT_EQ(widget->objectName().toStdString(), controls[static_cast<std::size_t>(control)].name);
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
        }
        const QSize size = edit.size();
        for (int page = 1; page <= edit.pageCount(); ++page) {
            edit.goView(page);
            EXPECT_TRUE(edit.pages().page(page)->isVisible());
            EXPECT_EQ(edit.size(), size);
        }
        book->addRecord();
        EXPECT_EQ(window.table().model()->rowCount(), 1);
        if (description.card) {
            window.showCard();
            EXPECT_FALSE(window.cardWindow().card().text().isEmpty());
        }
    }
}

}  // namespace

}  // namespace tavrel
