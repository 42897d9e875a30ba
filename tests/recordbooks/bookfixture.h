#pragma once

#include "base/texts.h"
#include "book/booktable.h"
#include "book/card.h"
#include "forms/formentry.h"
#include "records/nodate.h"
#include "support/records.h"
#include "support/streambytes.h"
#include "support/testdesktop.h"

#include <gtest/gtest.h>

namespace tavrel {

/// A record book of one type in a desktop of its own, driven by the names of its controls and fields.
template <class Class>
class BookFixture : public testing::Test {
protected:
    explicit BookFixture(const BookDescription& itsDescription) : description(itsDescription) {
        setTextLanguage(QStringLiteral("en"));
        book = description.make(desktop.desktop());
    }

    const BookDescription& description;
    TestDesktop desktop;
    std::unique_ptr<BookBase> book;

    FormStateBase& state() { return book->form().state(); }
    int indexOf(const char* control) {
        const int index = state().table().find(control);
        EXPECT_GE(index, 0) << control;
        return std::max(index, 0);
    }
    void enter(const char* control, const char* value) {
        EXPECT_TRUE(enterValue(state(), indexOf(control), QString::fromUtf8(value))) << control << ' ' << value;
    }
    const ControlState& at(const char* control) { return state().at(indexOf(control)); }
    std::shared_ptr<const Class> built() { return std::static_pointer_cast<const Class>(book->form().buildRecord()); }

    void hold(const std::vector<Class>& records) {
        RecordList list;
        for (const Class& record : records) {
            list.push_back(std::make_shared<Class>(record));
        }
        book->appendRecords(QStringLiteral("Add"), list);
    }
    Cell cell(const Class& record, const char* field) {
        book->replaceList({std::make_shared<Class>(record)});
        const BookTable table(*book);
        const int column = table.columnOf(field);
        EXPECT_GE(column, 0) << field;
        return column < 0 ? Cell() : table.cell(0, column);
    }
    /// The name of the colour of a cell's text.
    std::string colour(const Class& record, const char* field) {
        const Cell shown = cell(record, field);
        return shown.style.text ? shown.style.text->name().toStdString() : "default";
    }
    /// The card without its title and its two closing lines, line ends as "/".
    QString card(const std::vector<Class>& records) {
        RecordList list;
        for (const Class& record : records) {
            list.push_back(std::make_shared<Class>(record));
        }
        QString whole = description.card(list, desktop.desktop(), QStringLiteral("x")).text();
        whole.truncate(whole.indexOf(QStringLiteral("\rFile dir")));
        return whole.replace(u'\r', u'/');
    }
    /// Opens a file that is written down in the notation of streamBytes().
    void open(std::string_view notation) {
        const auto opened = book->loadDataRepresentation(streamBytes(notation), book->type());
        ASSERT_TRUE(opened) << opened.error().message().toStdString();
    }
    const Class& record(int row = 0) { return as<Class>(book->recordAt(row)); }

    static Date day(int year, int month, int dayOfMonth) {
        return Date::fromDateTime(QDate(year, month, dayOfMonth).startOfDay());
    }
};

}  // namespace tavrel
