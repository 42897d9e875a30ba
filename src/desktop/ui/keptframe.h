#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace tavrel {

class Preferences;

/// Gives a window the place and size it had when it was hidden last, under a name in the preferences, and no more than
/// the screen holds.
class KeptFrame : public QObject {
public:
    /// Becomes a child of the window.
    KeptFrame(QWidget& window, Preferences& preferences, const QString& name);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void keep();

    QWidget& window_;
    Preferences& preferences_;
    QString name_;
};

}  // namespace tavrel
