#include "recordbooks/diversdocs.h"

#include "book/standardbook.h"
#include "recordbooks/recordbooks.h"

namespace tavrel {

namespace {

constexpr Item items[] = {
    {"type", member<&DiversDocs::type>},
    {"titre", member<&DiversDocs::titre>},
    {"emetteur", member<&DiversDocs::emetteur>},
    {"date", member<&DiversDocs::date>},
    {"renouveler", member<&DiversDocs::renouveler>},
    {"dateRenouvellement", member<&DiversDocs::dateRenouvellement>},
    {"photocopy", member<&DiversDocs::photocopy>},
    {"notes", member<&DiversDocs::notes>},
};
constexpr RecordLayout documentsLayout = recordLayout<DiversDocs>("DiversDocs", 1, items);

class DiversDocsForm : public RecordBookForm<DiversDocsControls, DiversDocs> {
public:
    using RecordBookForm::RecordBookForm;

protected:
    void clear(int) override {
        state().setDate(controls().dateField, noDate());
        state().setDate(controls().dateRenouvellementField, noDate());
        state().requestFocus(controls().titreField);
    }

    void refresh() override {
        state().setEnabled(controls().dateRenouvellementField, state().isOn(controls().renouvelerSwitch));
    }
};

void typeCell(const DiversDocs& paper, const TableStyle&, Cell& cell) {
    cell.text = choiceText(documentTypes, paper.type, cell.text);
}

void renewCell(const DiversDocs& paper, const TableStyle&, Cell& cell) {
    checkCell(paper.renouveler == 1, cell);
}

constexpr Column columns[] = {
    {"type", {"Documents", "Column type"}, 18, Qt::AlignLeft, cellHook<typeCell>},
    {"titre", {"Documents", "Column title"}, 26},
    {"emetteur", {"Documents", "Column issuer"}, 20},
    {"date", {"Documents", "Column date"}, 12, Qt::AlignRight},
    {"renouveler", {"Documents", "Column renew"}, 9, Qt::AlignHCenter, cellHook<renewCell>},
    {"dateRenouvellement", {"Documents", "Column renewal date"}, 14, Qt::AlignRight},
};

constexpr BookCommands commands{"newDoc", "addDoc", "insertDoc", "updateDoc", "deleteDoc"};
constexpr RecordBookTools tools(commands);

constexpr Title pages[] = {{"Documents", "Page document"}, {"Documents", "Page copy"}, {"Documents", "Page notes"}};
constexpr BookSearch searches[] = {{{"Documents", "Find title"}, "titre"},
                                   {{"Documents", "Find issuer"}, "emetteur"},
                                   {{"Documents", "Find notes"}, "notes"}};

}  // namespace

const RecordLayout& DiversDocs::layout() {
    return documentsLayout;
}

const DiversDocsControls& DiversDocsControls::table() {
    static const DiversDocsControls controls;
    return controls;
}

const BookDescription& diversDocuments() {
    static const BookDescription description{
        .kind = {{"Main", "Divers documents"}, "DiversDocs", "documents"},
        .layoutName = "Documents",
        .newAction = "newDocumentDocumentMenuAction",
        .layout = DiversDocs::layout,
        .columns = columns,
        .tableStyle = plainTableStyle,
        .pages = pages,
        .numberField = "titreField",
        .tableToolBar = tools.tableToolBar("docTableViewWindowToolbar"),
        .editToolBar = tools.editToolBar("docEditWindowToolbar"),
        .commands = commands,
        .words =
            recordBookWords({"Documents", "Edit window"}, {"Documents", "Menu documents"}, {"Documents", "Documents"}),
        .searches = searches,
        .print = recordBookPrint,
        .makeForm = makeRecordBookForm<DiversDocsForm>,
        .make = makeRecordBook<DiversDocs, diversDocuments>,
    };
    return description;
}

}  // namespace tavrel
