#pragma once

#include <QColor>
#include <QString>

#include <vector>

namespace tavrel {

/// A stretch of text of one colour.
struct StyledRun {
    QString text;
    QColor colour;

    bool operator==(const StyledRun&) const = default;
};

/// Text in runs of one colour each. Line ends are carriage returns ("\r") where the text is that of a card; whoever
/// shows or prints it breaks lines at "\r" and "\n" alike.
class StyledText {
public:
    /// Appends text; a run goes on where the colour stays the same, and empty text adds none.
    void append(const QString& text, const QColor& colour);

    const std::vector<StyledRun>& runs() const { return runs_; }
    /// All runs in one.
    QString text() const;

private:
    std::vector<StyledRun> runs_;
};

}  // namespace tavrel
