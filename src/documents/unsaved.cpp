#include "documents/unsaved.h"

#include "base/fileidentity.h"
#include "base/texts.h"

#include <QDataStream>
#include <QIODevice>

#include <bit>

namespace tavrel {

namespace {

constexpr quint32 magic = 0x54766C4A;
constexpr qint32 formatVersion = 2;
constexpr QDataStream::Version wireVersion = QDataStream::Qt_6_4;
constexpr qint32 mostControls = 100'000;

void writeForm(QDataStream& stream, const UnstoredForm& form) {
    stream << qint32(form.row) << static_cast<qint32>(form.controls.size());
    for (const UnstoredForm::Control& control : form.controls) {
        const quint64 date = control.date.isNull() ? 0 : std::bit_cast<quint64>(control.date.secondsSince2001());
        stream << control.name << control.text << control.tag << !control.date.isNull() << date << control.image.tiff
               << control.image.width << control.image.height;
    }
    stream << (form.beside ? form.beside() : QByteArray());
}

UnstoredForm readForm(QDataStream& stream) {
    UnstoredForm form;
    qint32 row = -1;
    qint32 count = 0;
    stream >> row >> count;
    form.row = row;
    for (qint32 index = 0; index < std::min(count, mostControls) && stream.status() == QDataStream::Ok; ++index) {
        UnstoredForm::Control control;
        bool hasDate = false;
        quint64 date = 0;
        stream >> control.name >> control.text >> control.tag >> hasDate >> date >> control.image.tiff >>
            control.image.width >> control.image.height;
        control.date = hasDate ? Date(std::bit_cast<double>(date)) : Date();
        form.controls.push_back(std::move(control));
    }
    QByteArray beside;
    stream >> beside;
    if (!beside.isEmpty()) {
        form.beside = [beside] { return beside; };
    }
    return form;
}

}  // namespace

QByteArray archived(const Unsaved& unsaved, const ContentsFile& contents) {
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream.setVersion(wireVersion);
    stream << unsaved.recordClass << unsaved.name << unsaved.file << unsaved.fileHash << unsaved.fileSize
           << unsaved.isChanged << unsaved.records << unsaved.time.toMSecsSinceEpoch() << unsaved.number
           << unsaved.form.has_value();
    if (unsaved.form) {
        writeForm(stream, *unsaved.form);
    }
    stream << contents.name << contents.hash;
    QByteArray bytes;
    QDataStream whole(&bytes, QIODevice::WriteOnly);
    whole.setVersion(wireVersion);
    whole << magic << formatVersion << contentHash(body) << body;
    return bytes;
}

Expected<std::pair<Unsaved, ContentsFile>> unarchivedUnsaved(QByteArrayView bytes) {
    QDataStream whole(QByteArray::fromRawData(bytes.data(), bytes.size()));
    whole.setVersion(wireVersion);
    quint32 mark = 0;
    qint32 version = 0;
    QByteArray hash;
    QByteArray body;
    whole >> mark >> version;
    if (mark == magic && version == formatVersion) {
        whole >> hash >> body;
    }
    if (whole.status() != QDataStream::Ok || hash.isEmpty() || contentHash(body) != hash) {
        return failure(text("Main", "Unsaved work not readable"));
    }
    QDataStream stream(body);
    stream.setVersion(wireVersion);
    Unsaved unsaved;
    qint64 time = 0;
    bool hasForm = false;
    stream >> unsaved.recordClass >> unsaved.name >> unsaved.file >> unsaved.fileHash >> unsaved.fileSize >>
        unsaved.isChanged >> unsaved.records >> time >> unsaved.number >> hasForm;
    unsaved.time = QDateTime::fromMSecsSinceEpoch(time);
    if (hasForm) {
        unsaved.form = readForm(stream);
    }
    ContentsFile contents;
    stream >> contents.name >> contents.hash;
    if (stream.status() != QDataStream::Ok) {
        return failure(text("Main", "Unsaved work not readable"));
    }
    return std::pair(std::move(unsaved), std::move(contents));
}

}  // namespace tavrel
