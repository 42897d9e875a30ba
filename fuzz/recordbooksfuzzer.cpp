#include "archive/recordarchive.h"
#include "book/bookform.h"
#include "book/column.h"
#include "desktop/alerts.h"
#include "desktop/clock.h"
#include "desktop/desktop.h"
#include "desktop/notificationcentre.h"
#include "desktop/picklists.h"
#include "desktop/preferences.h"
#include "recordbooks/recordbooks.h"

#include <QCoreApplication>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Reads arbitrary bytes as the document of every record book. Records that can be read are written, read and written
// again to the same bytes; they are shown in the form, built from it, and stand in the table and on the card.

namespace {

using namespace tavrel;

class SilentAlerts : public Alerts {
public:
    void beep() override {}
    int ask(const QString&, const QStringList&) override { return 1; }
    void tell(const QString&) override {}
    void fail(const Failure&) override {}
};

struct FuzzedDesktop {
    Preferences preferences{QStringLiteral("/nonexistent/tavrel.ini"), Preferences::Keeping::thisRun};
    NotificationCentre notifications;
    PickLists pickLists{preferences};
    SilentAlerts alerts;
    Clock clock;
    Desktop desktop{preferences, notifications, pickLists, alerts, clock};
};

void require(QByteArrayView bytes, const BookDescription& book, Desktop& desktop) {
    const auto file = readRecords(bytes, book.layout());
    if (!file) {
        return;
    }
    const QByteArray written = writeRecords(file->records, book.layout());
    const auto again = readRecords(written, book.layout());
    if (!again || again->records.size() != file->records.size() ||
        writeRecords(again->records, book.layout()) != written) {
        std::abort();
    }
    const auto form = book.makeForm(desktop);
    const auto style = book.tableStyle(desktop);
    for (const auto& record : file->records) {
        form->editFields(*record);
        if (form->hasEntries()) {
            std::abort();
        }
        form->buildRecord();
        for (const Column& column : book.columns) {
            Cell cell;
            cell.text = plainText(*record, book.layout().field(std::string_view(column.field)), *style);
            if (column.cell) {
                column.cell(*record, *style, cell);
            }
        }
    }
    if (book.card) {
        book.card(file->records, desktop, QStringLiteral("file"));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static int argumentCount = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static const QCoreApplication application(argumentCount, arguments);
    static FuzzedDesktop fuzzed;
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    for (const auto& book : recordBooks) {
        require(bytes, book(), fuzzed.desktop);
    }
    return 0;
}
