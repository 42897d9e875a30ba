#pragma once

#include <QPlainTextEdit>
#include <QProgressBar>
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

/// Says that something is being loaded.
class LoadingWindow : public QWidget {
    Q_OBJECT

public:
    LoadingWindow();

    void start();
    void stop();

private:
    QProgressBar* loadingIndicator_;
};

}  // namespace tavrel
