#pragma once

#include "base/failure.h"
#include "desktop/setting.h"

#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace tavrel {

class Alerts;

/// The user's settings: keys with booleans, numbers, strings, string arrays and colours. A key that was never stored,
/// or that holds a value of another kind, reads as its registered default; without one as no, 0, "" or an empty list.
///
/// The file is an INI file, where numbers are texts and a list of one entry is that entry, so a kind is what a value
/// can be read as. A store that cannot be written, or whose place is taken by something else than a file of sane size,
/// keeps its values for the life of the program.
class Preferences {
public:
    enum class Keeping {
        onDisk,
        thisRun,  ///< what is set counts for the life of the program and never reaches the file
    };

    /// The store in the user's configuration folder (XDG), or the file given (tests).
    explicit Preferences(const QString& file = {}, Keeping keeping = Keeping::onDisk);

    /// Adds defaults; they apply while the user has no value of their own.
    void registerDefaults(const QVariantMap& defaults);

    bool isStored(const QString& key) const;
    /// The value of a setting, or its fallback while the user has none. "YES", "yes", "true", "1" and any number but 0
    /// are true, "NO", "false" and 0 are not; whole numbers are read like real ones.
    template <class Value>
    Value get(const Setting<Value>& setting) const;
    /// Numbers and the leading number of texts.
    double real(const QString& key) const;
    QString string(const QString& key) const;
    QStringList strings(const QString& key) const;
    /// Numbers and texts by name; the file holds it as the text of a JSON object.
    QVariantMap dictionary(const QString& key) const;

    /// Stores a boolean (as 0 or 1), number, string, string list, dictionary or bytes. Values reach the disk at once,
    /// the old file staying whole until the new one is complete.
    void set(const QString& key, const QVariant& value);
    /// Stores a setting. A colour is stored as its typed-stream archive; the colour that the setting has already keeps
    /// its archive, and with it the colour space.
    template <class Value>
    void set(const Setting<Value>& setting, const Value& value);

    /// While it lives values are only collected; its end writes them in one go.
    class Together {
    public:
        explicit Together(Preferences& preferences) : preferences_(preferences) { ++preferences_.together_; }
        ~Together();
        Together(const Together&) = delete;
        Together& operator=(const Together&) = delete;

    private:
        Preferences& preferences_;
    };

    /// Writes what is pending; a failure when the store cannot be written.
    Expected<void> synchronize();
    /// Writes what is pending, and tells of the first failure only: the values hold for this run all the same.
    void synchronize(Alerts& alerts);

    /// State of windows (frames, toolbars, columns) beside the preferences proper.
    QByteArray windowState(const QString& name) const;
    void setWindowState(const QString& name, const QByteArray& state);

private:
    Preferences(const QString& file, Keeping keeping, bool isReadable);

    template <class Reader>
    auto find(const QString& key, Reader reader) const;
    void write(const QString& key, const QVariant& value);
    QVariant stored(const QString& key) const;

    QSettings store_;
    QString unreadable_;                  ///< a file that is no settings file, until that was told
    std::optional<QVariantMap> thisRun_;  ///< stands in for the store once it was read
    QVariantMap defaults_;
    int together_ = 0;
    bool troubleTold_ = false;
};

}  // namespace tavrel
