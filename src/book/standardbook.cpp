#include "book/standardbook.h"

#include "book/card.h"
#include "forms/picklistentry.h"

#include <algorithm>

namespace tavrel {

QString choiceText(std::span<const Choice> choices, qint32 tag, const QString& unknown, const QString& missing) {
    const auto found =
        std::find_if(choices.begin(), choices.end(), [tag](const Choice& choice) { return choice.tag == tag; });
    return found == choices.end() ? unknown : found->title.text(missing);
}

void cotationCell(qint32 rating, Cell& cell) {
    cell.text = choiceText(cotations, rating, QString::number(rating));
    cell.words = textWith("Main", "Cotation in words", rating, highestCotation);
}

void ratedCell(qint32 rating, Cell& cell) {
    cotationCell(rating >= 1 && rating <= highestCotation ? rating : 0, cell);
    cell.style.text = rating != 0 ? plaincolour::brown : plaincolour::black;
}

void checkCell(bool isSet, Cell& cell) {
    cell.text = isSet ? text("Main", "Check", QStringLiteral("N/A")) : QString();
}

QString hoursAndMinutes(const Date& time) {
    return time == noDate() ? QString() : time.toDateTime().time().toString(u"HH:mm");
}

void offerFromForm(BookForm& form, int control, const QString& typed) {
    const auto& controls = form.state().table().controls();
    const auto& list = controls[static_cast<std::size_t>(control)].control.pickList;
    if (!list) {
        return;
    }
    const auto first = std::find_if(controls.begin(), controls.end(), [](const PlacedControl& placed) {
        return placed.control.kind == ControlKind::combo && placed.control.pickList;
    });
    const QString& named = form.state().at(static_cast<int>(first - controls.begin())).text;
    // Spaces alone are trimmed, not every kind of blank.
    qsizetype begin = 0;
    qsizetype end = typed.size();
    while (begin < end && typed[begin] == u' ') {
        ++begin;
    }
    while (end > begin && typed[end - 1] == u' ') {
        --end;
    }
    offerToPickList(form.desktop(), *list, typed.mid(begin, end - begin), named);
}

QString titleByDay(const BookBase& book) {
    const auto& form = book.form().state();
    const Date& day = form.at(form.table().find(book.description().numberField)).date;
    const TableStyle style(book.desktop().clock);
    const QString shown =
        isNoDate(day) ? QStringLiteral("…") : style.locale.toString(day.toDateTime().date(), style.dateFormat);
    return textWith(book.description().words.windowTitle, shown);
}

}  // namespace tavrel
