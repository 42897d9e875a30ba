#include "app/mydocumentcontroller.h"
#include "base/paths.h"
#include "base/texts.h"
#include "desktop/alerts.h"

#include <QLocale>

#include <algorithm>
#include <cstddef>

// What guards documents against other programs and a sudden end.

namespace tavrel {

namespace {

/// What was kept of one document, for the user.
QString lineOf(const Unsaved& unsaved) {
    const QString name = shownPath(unsaved.name);
    const QString place = unsaved.file.isEmpty() ? text("Main", "Unsaved without file") : shownPath(unsaved.file);
    const QString time = QLocale().toString(unsaved.time, QLocale::ShortFormat);
    if (!unsaved.isChanged) {
        return textWith("Main", "Unsaved form", name, place, time);
    }
    const QString records = QString::number(unsaved.records);
    return unsaved.form ? textWith("Main", "Unsaved records and form", name, place, time, records)
                        : textWith("Main", "Unsaved records", name, place, time, records);
}

}  // namespace

bool MyDocumentController::saveOverChange(DocumentWindow& window, FileIdentity::State state, Entries entries) {
    enum Answer { overwrite, elsewhere, reload };
    const bool isGone = state == FileIdentity::State::gone;
    QStringList answers{text("Main", "Overwrite"), text("Main", "Save elsewhere")};
    if (!isGone) {
        answers.append(text("Main", "Reload"));
    }
    answers.append(text("Main", "Cancel"));
    Document& document = window.document();
    const Title question = isGone ? Title("Main", "Save over removal") : Title("Main", "Save over change");
    desktop_.alerts.beep();
    const int answer = desktop_.alerts.ask(textWith(question, document.displayName()), answers);
    if (answer == overwrite) {
        window.settleEntries(entries);
        return succeeded(document.save(Document::Overwriting::yes));
    }
    if (answer == elsewhere) {
        return saveElsewhere(window, entries);
    }
    if (answer == reload && !isGone) {
        if (succeeded(document.revert())) {
            window.settleEntries(Entries::dropped);
        }
    }
    return false;
}

void MyDocumentController::tellStateOnDisk(DocumentWindow& window, FileIdentity::State state) {
    MessageBar& bar = window.messageBar();
    switch (state) {
        case FileIdentity::State::same:
            bar.tell(window.document().isOfNewerVersion() ? text("Main", "File of newer version") : QString());
            break;
        case FileIdentity::State::changed:
            bar.tell(text("Main", "File changed by another"), text("Main", "Reload"), [this, &window] {
                Document& document = window.document();
                const QString question =
                    document.isChanged() ? textWith("Main", "Revert question", document.displayName()) : QString();
                reload(window, question, [&document] { return document.revert(); });
            });
            break;
        case FileIdentity::State::gone:
            bar.tell(text("Main", "File removed by another"));
            break;
    }
}

bool MyDocumentController::claim(Document& document, const QString& file) {
    const auto holder = document.claimFile(file);
    if (!holder) {
        return true;
    }
    enum Answer { readOnly, anyway };
    const QString question = textWith("Main", "Open elsewhere question", shownName(file), holder->name());
    const int answer = desktop_.alerts.ask(
        question, {text("Main", "Open read-only"), text("Main", "Open anyway"), text("Main", "Cancel")});
    document.setReadOnly(answer == readOnly);
    return answer == readOnly || answer == anyway;
}

void MyDocumentController::offerUnsaved() {
    enum Answer { restoreIt, discardIt, leaveIt };
    auto found = journals_.left();
    if (const QString& aside = journals_.keptAside(); !aside.isEmpty()) {
        desktop_.alerts.tell(textWith("Main", "Unsaved work kept aside", shownPath(aside)));
    }
    for (JournalFolder::Left& left : found) {
        QStringList lines;
        for (const Unsaved& each : left.documents) {
            lines.append(lineOf(each));
        }
        const QString question = textWith("Main", "Unsaved question", lines.join(u'\n'));
        const int answer = desktop_.alerts.ask(
            question, {text("Main", "Restore"), text("Main", "Discard"), text("Main", "Unsaved later")});
        if (answer == discardIt) {
            left.discard();
        } else if (answer == restoreIt) {
            const bool all = std::count_if(left.documents.begin(), left.documents.end(), [this](const Unsaved& each) {
                                 return restore(each);
                             }) == static_cast<std::ptrdiff_t>(left.documents.size());
            // What was restored is kept anew before the old goes.
            if (keepUnsaved() && all) {
                left.discard();
            }
        }
    }
}

bool MyDocumentController::restore(const Unsaved& unsaved) {
    const auto type = std::find_if(types_.begin(), types_.end(), [&](const DocumentType& each) {
        return unsaved.recordClass == QLatin1StringView(each.recordClass);
    });
    DocumentWindow* open = unsaved.file.isEmpty() ? nullptr : windowOf(unsaved.file);
    if (type == types_.end() || (open && open->document().unsaved())) {
        return false;
    }
    auto document = type->makeDocument(desktop_);
    if (!succeeded(document->restore(unsaved))) {
        return false;
    }
    if (open) {
        removeWindow(*open);
    }
    if (!unsaved.file.isEmpty() && !claim(*document, unsaved.file)) {
        return false;
    }
    DocumentWindow* window = addWindow(*type, std::move(document));
    if (unsaved.form) {
        window->document().showUnstored(*unsaved.form);
    }
    discardUntouched();
    return true;
}

bool MyDocumentController::keepUnsaved() {
    // Each of them, also when one could not be kept.
    return std::count_if(open_.begin(), open_.end(),
                         [](const OpenDocument& each) { return !each.journal->keepNow(); }) == 0;
}

}  // namespace tavrel
