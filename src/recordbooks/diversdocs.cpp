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

/// The kinds of paper.
constexpr Choice documentTypes[] = {
    {0, {"Documents", "TableView attestation"}}, {1, {"Documents", "TableView certification"}},
    {2, {"Documents", "TableView certifMed"}},   {3, {"Documents", "TableView facture"}},
    {4, {"Documents", "TableView licence"}},     {5, {"Documents", "TableView autre"}}};

struct DiversDocsControls : ControlTable<DiversDocsControls> {
    // Page 1: what it is.
    const int documentGroup = group({1, {"Documents", "Group document"}});
    const Id titreField =
        add({.name = "titreField", .field = "titre", .label = {"Documents", "Label title"}, .width = 34});
    const Id typeDocPopUp = add({.name = "typeDocPopUp",
                                 .kind = ControlKind::popUp,
                                 .field = "type",
                                 .label = {"Documents", "Label type"},
                                 .choices = documentTypes});
    const Id emetteurField =
        add({.name = "emetteurField", .field = "emetteur", .label = {"Documents", "Label issuer"}});
    const Id dateField = add({.name = "dateField",
                              .kind = ControlKind::date,
                              .field = "date",
                              .label = {"Documents", "Label date"},
                              .emptyAt1900 = true});
    const int renewalGroup = group({1, {"Documents", "Group renewal"}});
    const Id renouvelerSwitch = add({.name = "renouvelerSwitch",
                                     .kind = ControlKind::onOff,
                                     .field = "renouveler",
                                     .label = {"Documents", "Label renew"}});
    const Id dateRenouvellementField = add({.name = "dateRenouvellementField",
                                            .kind = ControlKind::date,
                                            .field = "dateRenouvellement",
                                            .label = {"Documents", "Label renewal date"},
                                            .emptyAt1900 = true});

    // Page 2: the copy.
    const int copyGroup = group({2, {"Documents", "Group copy"}});
    const Id photocopyView = add({.name = "photocopyView",
                                  .kind = ControlKind::picture,
                                  .field = "photocopy",
                                  .label = {"Documents", "Label copy"}});

    // Page 3: remarks.
    const int notesGroup = group({3, {"Documents", "Group notes"}});
    const Id notesField = add({.name = "notesField", .kind = ControlKind::longText, .field = "notes"});

    static const DiversDocsControls& table() {
        static const DiversDocsControls controls;
        return controls;
    }

private:
    DiversDocsControls() = default;
};

class DiversDocsForm : public RecordBookForm<DiversDocsControls, DiversDocs> {
public:
    using RecordBookForm::RecordBookForm;

protected:
    void clear(int) override {
        state().setDate(controls().dateField, noDate());
        state().setDate(controls().dateRenouvellementField, noDate());
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
    {"type", {"Documents", "Column type"}, 20, Qt::AlignLeft, cellHook<typeCell>},
    {"titre", {"Documents", "Column title"}, 26},
    {"emetteur", {"Documents", "Column issuer"}, 22},
    {"date", {"Documents", "Column date"}, widthOfDays, Qt::AlignRight},
    {"renouveler", {"Documents", "Column renew"}, 9, Qt::AlignHCenter, cellHook<renewCell>},
    {"dateRenouvellement", {"Documents", "Column renewal date"}, widthOfDays, Qt::AlignRight},
};

constexpr BookCommands commands{"newDoc", "addDoc", "insertDoc", "updateDoc", "deleteDoc"};
constexpr RecordBookTools tools(commands);

constexpr Title pages[] = {{"Documents", "Page document"}, {"Documents", "Page copy"}, {"Documents", "Page notes"}};

}  // namespace

const RecordLayout& DiversDocs::layout() {
    return documentsLayout;
}

const BookDescription& diversDocuments() {
    static constexpr BookDescription description{
        .kind = {{"Main", "Divers documents"}, "DiversDocs", "documents"},
        .title = {"Main", "Type documents"},
        .layoutName = "Documents",
        .newAction = "newDocumentDocumentMenuAction",
        .layout = &DiversDocs::layout,
        .columns = columns,
        .tableStyle = &plainTableStyle,
        .pages = pages,
        .numberField = "titreField",
        .tableToolBar = tools.tableToolBar("docTableViewWindowToolbar"),
        .editToolBar = tools.editToolBar("docEditWindowToolbar"),
        .commands = commands,
        .words =
            recordBookWords({"Documents", "Edit window"}, {"Documents", "Menu documents"}, {"Documents", "Documents"}),
        .print = recordBookPrint,
        .makeForm = &makeRecordBookForm<DiversDocsForm>,
        .make = &makeRecordBook<DiversDocs, diversDocuments>,
    };
    return description;
}

}  // namespace tavrel
