#pragma once

#include <QComboBox>
#include <QStringListModel>

#include <functional>

namespace tavrel {

/// A text that is typed or taken from a list. What is typed stays as it is typed, capitals included; the list only
/// proposes. The pop-up is as wide as its entries.
class ListCombo : public QComboBox {
    Q_OBJECT

public:
    explicit ListCombo(QStringListModel* list, QWidget* parent = nullptr);

    /// Shows a text without telling anyone; the cursor keeps its place.
    void showText(const QString& text);
    void showPopup() override;
    /// Texts to propose besides those of the list; asked each time the field is entered.
    void proposeAlso(std::function<QStringList()> held) { held_ = std::move(held); }
    /// What is proposed now.
    QStringList proposals() const { return proposals_->stringList(); }

protected:
    void focusInEvent(QFocusEvent* event) override;

Q_SIGNALS:
    /// The user typed, or took an entry.
    void entered(const QString& text);
    /// Return was pressed or the focus left.
    void finished();
    /// The list is another one and the text shown has gone with the old one.
    void listReset();

private:
    void gatherProposals();

    QStringListModel* list_;
    QStringListModel* proposals_;
    std::function<QStringList()> held_;
};

}  // namespace tavrel
