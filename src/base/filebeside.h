#pragma once

#include <QByteArray>
#include <QByteArrayView>

struct stat;

namespace tavrel {

/// A new file in the folder of another, which it replaces once it is complete. Until then it has no name where the
/// file system can do that, and only its writer may read it; one with a name is removed with the object, by a signal
/// that ends the program, or, after a sudden end, by the next save in the folder.
///
/// Each step answers false with errno set when it fails.
class FileBeside {
public:
    explicit FileBeside(const QByteArray& target);
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside();

    enum class Access {
        usual,  ///< it is to have the permissions of any new file: takeUsualMode()
        owner,  ///< nobody else ever has it open, unless takeAttributesOf() lets others in
    };
    /// Named: from the start with a name.
    bool create(bool named, Access access);
    bool isNamed() const { return !name_.isEmpty(); }
    bool write(QByteArrayView bytes);
    /// Gives the file the owner, group, access lists, user attributes and permissions of another.
    /// False, too, where its owner would lose an access that cannot be kept.
    bool takeAttributesOf(const QByteArray& path, const struct stat& old);
    /// Only its writer may read it, whatever of another's attributes it took.
    bool stayPrivate();
    /// The permissions of any new file.
    bool takeUsualMode();
    bool flush();
    bool replaceTarget();
    /// Of the complete file.
    bool status(struct stat& status) const;

private:
    bool claimName();
    bool link();
    void dropName();

    QByteArray target_;
    QByteArray folder_;  ///< with its slash
    QByteArray name_;
    int descriptor_ = -1;
    unsigned usualMode_ = 0;
    int slot_ = -1;  ///< of the names that signals remove
};

}  // namespace tavrel
