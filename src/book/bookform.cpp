#include "book/bookform.h"

#include "base/texts.h"
#include "forms/entryhint.h"
#include "forms/formentry.h"
#include "forms/picklistentry.h"

namespace tavrel {

namespace {

bool sameEntry(const ControlState& left, const ControlState& right) {
    return left.text == right.text && left.tag == right.tag && left.date == right.date && left.image == right.image;
}

}  // namespace

BookForm::BookForm(Desktop& desktop, const RecordLayout& layout, std::unique_ptr<FormStateBase> state)
    : desktop_(desktop), layout_(layout), state_(std::move(state)), binding_(state_->table(), layout) {
    connect(state_.get(), &FormStateBase::edited, this, [this](int control) {
        entered_ = true;
        entered(control);
        Q_EMIT userEdited();
    });
    remember();
}

BookForm::~BookForm() = default;

void BookForm::blankFields(int count) {
    const FormStateBase::Batch batch(*state_);
    state_->clear();
    clear(count);
    refresh();
    remember();
}

void BookForm::editFields(const Record& record) {
    const FormStateBase::Batch batch(*state_);
    binding_.load(*state_, record);
    show(record);
    refresh();
    remember();
}

RecordPointer BookForm::buildRecord() {
    const FormStateBase::Batch batch(*state_);
    correct();
    const std::shared_ptr<Record> record = layout_.make();
    binding_.build(*state_, *record);
    complete(*record);
    refresh();
    return record;
}

void BookForm::updateUI() {
    const FormStateBase::Batch batch(*state_);
    refresh();
}

void BookForm::remember() {
    entered_ = false;
    remembered_.clear();
    for (std::size_t index = 0; index < state_->table().controls().size(); ++index) {
        remembered_.push_back(state_->at(static_cast<int>(index)));
    }
    rememberBeside();
}

bool BookForm::hasEntries() const {
    if (!entered_) {
        return differsBeside();
    }
    const auto& controls = state_->table().controls();
    for (std::size_t index = 0; index < controls.size(); ++index) {
        if (takesEntries(controls[index].control.kind) &&
            !sameEntry(state_->at(static_cast<int>(index)), remembered_[index])) {
            return true;
        }
    }
    return differsBeside();
}

std::vector<UnstoredForm::Control> BookForm::entries() const {
    std::vector<UnstoredForm::Control> entries;
    const auto& controls = state_->table().controls();
    for (std::size_t index = 0; index < controls.size(); ++index) {
        if (takesEntries(controls[index].control.kind)) {
            const ControlState& held = state_->at(static_cast<int>(index));
            entries.push_back(
                {QString::fromStdString(controls[index].name), held.text, held.tag, held.date, held.image});
        }
    }
    return entries;
}

void BookForm::enterAgain(const UnstoredForm& entries) {
    {
        const FormStateBase::Batch batch(*state_);
        for (const UnstoredForm::Control& entry : entries.controls) {
            const int index = state_->table().find(entry.name.toStdString());
            if (index >= 0) {
                state_->setText(index, entry.text);
                state_->setTag(index, entry.tag);
                state_->setDate(index, entry.date);
                state_->setImage(index, entry.image);
            }
        }
        if (entries.beside) {
            enterBesideAgain(entries.beside());
        }
        entered_ = true;
        refresh();
    }
    Q_EMIT userEdited();
}

void BookForm::endEditing(int control, const QString& typed) {
    if (const auto& list = state_->table().controls()[static_cast<std::size_t>(control)].control.pickList) {
        offerToPickList(desktop_, *list, typed);
    }
}

QString BookForm::hint(int control) const {
    return entryHint(state_->table().controls()[static_cast<std::size_t>(control)].control, state_->at(control),
                     binding_.fieldKind(control));
}

QStringList BookForm::ownList(int) const {
    return {};
}

bool BookForm::holdsBeside(const QString&) const {
    return false;
}

Expected<void> BookForm::enterBeside(const QString& field, const QString&) {
    return failure(textWith("Main", "No usable field", field));
}

void BookForm::clear(int) {}
void BookForm::show(const Record&) {}
void BookForm::correct() {}
void BookForm::complete(Record&) {}
void BookForm::refresh() {}

void BookForm::entered(int) {
    updateUI();
}

bool BookForm::differsBeside() const {
    return false;
}

void BookForm::rememberBeside() {}

std::function<QByteArray()> BookForm::entriesBeside() const {
    return {};
}

void BookForm::enterBesideAgain(QByteArrayView) {}

}  // namespace tavrel
