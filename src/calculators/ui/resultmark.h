#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

#include <functional>

class QLabel;

namespace tavrel {

/// Tells whether a result still belongs to what stands in the inputs. While it does not, the widgets that show it are
/// dimmed and a note under them says so. Typed back, the inputs make it the result again.
class ResultMark : public QObject {
public:
    /// Belongs to the window of its widgets.
    explicit ResultMark(QWidget* window);

    /// A line edit or a combo box that the result depends on.
    void watch(QWidget* input);
    /// A widget that shows the result, or part of it.
    void dim(QWidget* shown);
    /// The note to show with the dimmed result. Its room is kept, so that nothing moves.
    QLabel* note() const { return note_; }
    void whenChanged(std::function<void(bool stale)> changed) { changed_ = std::move(changed); }

    /// The inputs are those of the result shown now.
    void calculated();
    bool isStale() const { return stale_; }

private:
    QStringList entries() const;
    void compare();

    QList<QWidget*> inputs_;
    QList<QWidget*> shown_;
    QLabel* note_;
    QStringList calculated_;
    bool hasResult_ = false;
    bool stale_ = false;
    std::function<void(bool)> changed_;
};

}  // namespace tavrel
