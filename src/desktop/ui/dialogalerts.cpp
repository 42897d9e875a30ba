#include "desktop/ui/dialogalerts.h"

#include "base/printable.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace tavrel {

namespace {

/// The first line of a message, which says what it is about; a long one is cut.
QString titleOf(const QString& message) {
    constexpr qsizetype longest = 80;
    const QString line = message.section(u'\n', 0, 0);
    return line.size() <= longest ? line : line.left(longest - 1) + u'…';
}

/// Names of files and fields are shown as they are, so nothing in an alert is taken for markup.
class AlertBox : public QMessageBox {
public:
    AlertBox(Icon icon, const QString& message)
        : QMessageBox(icon, titleOf(printable(message)), printable(message), NoButton, QApplication::activeWindow()) {
        setTextFormat(Qt::PlainText);
        // Form and table of a document are windows of their own: an answer is to what stood there when it was asked.
        setWindowModality(Qt::ApplicationModal);
    }

    /// The format of the box is that of its first text only.
    void setDetail(const QString& detail) {
        setInformativeText(printable(detail));
        for (QLabel* label : findChildren<QLabel*>()) {
            label->setTextFormat(Qt::PlainText);
        }
    }
};

}  // namespace

void DialogAlerts::beep() {
    QApplication::beep();
}

int DialogAlerts::ask(const QString& message, const QStringList& buttons) {
    AlertBox box(QMessageBox::Question, message);
    QList<QAbstractButton*> added;
    for (const QString& title : buttons) {
        const bool isFirst = added.isEmpty();
        const bool isLast = added.size() == buttons.size() - 1;
        added.append(box.addButton(title, isFirst  ? QMessageBox::AcceptRole
                                          : isLast ? QMessageBox::RejectRole
                                                   : QMessageBox::DestructiveRole));
    }
    box.setDefaultButton(qobject_cast<QPushButton*>(added.constFirst()));
    box.setEscapeButton(added.constLast());
    box.exec();
    const auto chosen = added.indexOf(box.clickedButton());
    return static_cast<int>(chosen < 0 ? added.size() - 1 : chosen);
}

void DialogAlerts::tell(const QString& message) {
    AlertBox box(QMessageBox::Information, message);
    box.exec();
}

void DialogAlerts::fail(const Failure& failure) {
    AlertBox box(QMessageBox::Warning, failure.sentence);
    box.setDetail(failure.detail);
    box.exec();
}

}  // namespace tavrel
