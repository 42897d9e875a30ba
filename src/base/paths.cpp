#include "base/paths.h"

#include <QDir>
#include <QFileInfo>
#include <QStringDecoder>
#include <climits>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrel {

namespace {

constexpr char16_t firstEscape = 0xDC80;
constexpr char16_t lastEscape = 0xDCFF;
constexpr int mostLinks = 40;  ///< as the kernel follows

bool isEscape(const QString& path, qsizetype at) {
    const char16_t unit = path[at].unicode();
    return unit >= firstEscape && unit <= lastEscape && (at == 0 || !path[at - 1].isHighSurrogate());
}

bool decodes(QByteArrayView bytes, QString& text) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    text = decoder(bytes);
    return !decoder.hasError();
}

/// How many bytes a character takes that begins with this one.
qsizetype lengthOfCharacter(unsigned char first) {
    return first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

struct Freed {
    void operator()(char* memory) const { std::free(memory); }
};

QByteArray realPath(const QByteArray& path) {
    const std::unique_ptr<char, Freed> real(::realpath(path.constData(), nullptr));
    return real ? QByteArray(real.get()) : QByteArray();
}

}  // namespace

QString pathFromBytes(QByteArrayView bytes) {
    QString path;
    if (decodes(bytes, path)) {
        return path;
    }
    path.clear();
    QString character;
    for (qsizetype at = 0; at < bytes.size();) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const qsizetype length = lengthOfCharacter(first);
        if (at + length <= bytes.size() && decodes(bytes.sliced(at, length), character)) {
            path += character;
            at += length;
        } else {
            path += QChar(static_cast<char16_t>(0xDC00 + first));
            ++at;
        }
    }
    return path;
}

QByteArray pathBytes(const QString& path) {
    QByteArray bytes;
    qsizetype start = 0;
    for (qsizetype at = 0; at < path.size(); ++at) {
        if (isEscape(path, at)) {
            bytes += QStringView(path).sliced(start, at - start).toUtf8();
            bytes += static_cast<char>(path[at].unicode() - 0xDC00);
            start = at + 1;
        }
    }
    return bytes += QStringView(path).sliced(start).toUtf8();
}

QString shownPath(const QString& path) {
    QString shown = path;
    for (qsizetype at = 0; at < path.size(); ++at) {
        if (isEscape(path, at)) {
            shown[at] = QChar::ReplacementCharacter;
        }
    }
    return shown;
}

QString shownName(const QString& path) {
    return shownPath(QFileInfo(path).fileName());
}

QString absolutePath(const QString& path) {
    if (path.isEmpty() || path.startsWith(u'/')) {
        return path;
    }
    std::array<char, PATH_MAX> folder{};
    return ::getcwd(folder.data(), folder.size()) ? pathFromBytes(QByteArrayView(folder.data())) + u'/' + path : path;
}

bool pathExists(const QString& path) {
    struct stat status {};
    return ::lstat(pathBytes(path).constData(), &status) == 0;
}

QString canonicalPath(const QString& path) {
    return path.isEmpty() ? QString() : pathFromBytes(realPath(pathBytes(path)));
}

QByteArray resolvedPath(const QByteArray& path) {
    QByteArray name = path;
    for (int links = 0; links <= mostLinks; ++links) {
        if (QByteArray real = realPath(name); !real.isEmpty() || errno != ENOENT) {
            return real;
        }
        // The last name leads nowhere yet: its folder must be there.
        const auto slash = name.lastIndexOf('/');
        const QByteArray last = name.sliced(slash + 1);
        const QByteArray folder = realPath(slash < 0 ? QByteArray(".") : name.left(std::max<qsizetype>(slash, 1)));
        if (folder.isEmpty() || last.isEmpty()) {
            return {};
        }
        const QByteArray place = (folder == "/" ? folder : folder + '/') + last;
        std::array<char, PATH_MAX> target{};
        const ssize_t length = ::readlink(place.constData(), target.data(), target.size());
        if (length < 0) {
            return errno == ENOENT ? place : QByteArray();
        }
        const QByteArray next(target.data(), static_cast<qsizetype>(length));
        name = next.startsWith('/') ? next : folder + '/' + next;
    }
    errno = ELOOP;
    return {};
}

QString stateFolder() {
    QString base = QString::fromLocal8Bit(qgetenv("XDG_STATE_HOME"));
    if (!base.startsWith(u'/')) {
        base = QDir::homePath() + QStringLiteral("/.local/state");
    }
    QString folder = base + QStringLiteral("/tavrel");
    if (!QDir().mkpath(base) || (::mkdir(pathBytes(folder).constData(), 0700) != 0 && errno != EEXIST)) {
        return {};
    }
    return folder;
}

}  // namespace tavrel
