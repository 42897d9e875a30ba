#pragma once

#include "book/booktable.h"
#include "book/card.h"
#include "forms/formentry.h"
#include "records/nodate.h"
#include "support/records.h"
#include "support/streambytes.h"
#include "support/testdesktop.h"

namespace tavrel {

/// A record book of one type in a desktop of its own, driven by the names of its controls and fields.
template <class Class, const BookDescription& (*describe)()>
struct BookFixture : testing::Test {
    const BookDescription& description = describe();
    TestDesktop desktop;
    std::unique_ptr<BookBase> book = description.make(desktop.desktop());

    FormStateBase& state() { return book->form().state(); }
    int indexOf(const char* control) {
        const int index = state().table().find(control);
        EXPECT_GE(index, 0) << control;
        return std::max(index, 0);
    }
    /// Enters "control=value|control=value".
    void enter(const char* values) {
        for (const auto& [control, value] : namedValues(values)) {
            EXPECT_TRUE(enterValue(state(), indexOf(control.c_str()), value)) << control << ' ' << value.toStdString();
        }
    }
    const ControlState& at(const char* control) { return state().at(indexOf(control)); }
    std::shared_ptr<const Class> built() { return std::static_pointer_cast<const Class>(book->form().buildRecord()); }

    void hold(const std::vector<Class>& records) { book->appendRecords(QStringLiteral("Add"), listOf(records)); }
    Cell cell(const Class& record, const char* field) {
        book->replaceList({std::make_shared<Class>(record)});
        const BookTable table(*book);
        const int column = table.columnOf(field);
        EXPECT_GE(column, 0) << field;
        return column < 0 ? Cell() : table.cell(0, column);
    }
    /// The texts of cells and of controls that are named with blanks between, as "a|b".
    QString cells(const Class& record, const char* fields) {
        return eachOf(fields, [&](const char* field) { return cell(record, field).text; });
    }
    QString texts(const char* names) {
        return eachOf(names, [&](const char* control) { return at(control).text; });
    }
    /// The name of the colour of a cell's text.
    std::string colour(const Class& record, const char* field) {
        const Cell shown = cell(record, field);
        return shown.style.text ? shown.style.text->name().toStdString() : "default";
    }
    /// The card without its title and its two closing lines, line ends as "/".
    QString card(const std::vector<Class>& records) {
        QString whole = description.card(listOf(records), desktop.desktop(), QStringLiteral("x")).text();
        whole.truncate(whole.indexOf(QStringLiteral("\rFile dir")));
        return whole.replace(u'\r', u'/');
    }
    /// Opens a file of one record: the class version and the record's items, written down as for streamBytes().
    void open(const std::string& version, const std::string& items) {
        const std::string notation =
            R"(04 "streamtyped" 81e803 84"@" 8484 84"NSMutableArray"00 8484"NSArray"00 8484"NSObject"00 85 84"i"01
               92 8484 84")" +
            std::string(description.kind.recordClass) + '"' + version + " 95 " + items + " 86 86";
        const auto opened = book->loadDataRepresentation(streamBytes(notation), book->type());
        ASSERT_TRUE(opened) << opened.error().message().toStdString();
    }
    const Class& record(int row = 0) { return as<Class>(book->recordAt(row)); }
};

}  // namespace tavrel
