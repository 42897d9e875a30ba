#include "book/card.h"

#include "records/date.h"

#include <cstdlib>

namespace tavrel {

CardBuilder::CardBuilder(const Title& title) {
    card_.append(title.text(), plaincolour::green);
}

void CardBuilder::beginRecord() {
    card_.append(QStringLiteral("\r\r--------------------"), plaincolour::black);
}

void CardBuilder::entry(const Title& label, const QString& value) {
    card_.append(label.text(), plaincolour::black);
    card_.append(value, plaincolour::blue);
}

void CardBuilder::entry(const Title& label, int value) {
    entry(label, QString::number(value));
}

void CardBuilder::entry(const Title& label, const Date& value) {
    entry(label, value.toDateTime().date().toString(u"dd/MM/yyyy"));
}

void CardBuilder::add(const QString& text, const QColor& colour) {
    card_.append(text, colour);
}

StyledText CardBuilder::finish(const QString& file, const QDateTime& now) {
    const QDateTime moment = now.toOffsetFromUtc(now.offsetFromUtc());
    const int minutes = moment.offsetFromUtc() / 60;
    const QString offset = QStringLiteral("%1%2%3")
                               .arg(QChar(minutes < 0 ? u'-' : u'+'))
                               .arg(std::abs(minutes) / 60, 2, 10, QLatin1Char('0'))
                               .arg(std::abs(minutes) % 60, 2, 10, QLatin1Char('0'));
    card_.append(QStringLiteral("\rFile dir : ") + file, plaincolour::green);
    card_.append(QStringLiteral("\r\rEdition date : %1 %2").arg(moment.toString(u"yyyy-MM-dd HH:mm:ss"), offset),
                 plaincolour::green);
    return card_;
}

}  // namespace tavrel
