#pragma once

#include <QPlainTextEdit>
#include <QWidget>

namespace tavrel {

class Preferences;

/// The memo: a note pad whose text is kept in the preferences.
class MemoWindow : public QWidget {
    Q_OBJECT

public:
    explicit MemoWindow(Preferences& preferences);

    QPlainTextEdit& editor() { return *editor_; }

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void keep();

    Preferences& preferences_;
    QPlainTextEdit* editor_;
};

}  // namespace tavrel
