#include "check/FileRecord.h"

#include "base/Files.h"
#include "base/Texts.h"
#include "check/Folding.h"
#include "check/WalkBytes.h"

#include <QHashFunctions>

#include <algorithm>
#include <sys/stat.h>

namespace dravolin::check {

namespace {

constexpr qsizetype preambleSize = 128;
constexpr Tag sopClassTag = 0x00080016;
constexpr Tag sopInstanceTag = 0x00080018;
constexpr Tag conversionTypeTag = 0x00080064;
constexpr Tag framesTag = 0x00280008;
constexpr Tag burnedInTag = 0x00280301;

quint64 hashOf(QByteArrayView bytes)
{
    return qHashBits(bytes.data(), static_cast<size_t>(bytes.size()), 1);
}

// Of each fragment; their lengths, and the table of offsets before them, do not count.
quint64 hashOfFragments(QByteArrayView pixels)
{
    constexpr qsizetype headerSize = 8;
    quint64 hash = 1;
    bool isTable = true;
    for (qsizetype at = 0; pixels.size() - at >= headerSize;) {
        const qsizetype start = at + headerSize;
        const qsizetype length = std::min<qsizetype>(number32At(pixels, at + 4, {}), pixels.size() - start);
        if (!isTable)
            hash = mixed(hash, hashOf(pixels.sliced(start, length)));
        isTable = false;
        at = start + length;
    }
    return hash;
}

quint64 hashOfFrames(QByteArrayView pixels, qsizetype frames)
{
    const qsizetype size = pixels.size() / std::max<qsizetype>(frames, 1);
    quint64 hash = 1;
    for (qsizetype at = 0; at < pixels.size(); at += std::max<qsizetype>(size, 1))
        hash = mixed(hash, hashOf(pixels.sliced(at, std::min(size, pixels.size() - at))));
    return hash;
}

struct TextClass
{
    const char *uid; // its beginning
    const char *reason;
};

// Kinds of objects whose pixels usually show text.
constexpr TextClass textClasses[] = {
    {"1.2.840.10008.5.1.4.1.1.7", QT_TR_NOOP("secondary capture")},
    {"1.2.840.10008.5.1.4.1.1.6", QT_TR_NOOP("ultrasound")},
    {"1.2.840.10008.5.1.4.1.1.3", QT_TR_NOOP("ultrasound")},
    {"1.2.840.10008.5.1.4.1.1.104", QT_TR_NOOP("encapsulated document")},
    {"1.2.840.10008.5.1.4.1.1.77.1", QT_TR_NOOP("photograph or video")},
    {"1.2.840.10008.5.1.4.1.1.11.1", nullptr}, // presentation states, whose UIDs begin alike
};

const char *reasonOf(const QString &sopClass)
{
    for (const TextClass &known : textClasses) {
        const QLatin1String uid(known.uid);
        if (sopClass.startsWith(uid) && (sopClass.size() == uid.size() || sopClass[uid.size()] == u'.'))
            return known.reason;
    }
    return nullptr;
}

// Collects what a record says from the attributes of the top level.
class Facts
{
public:
    void see(const Element &element)
    {
        if (!element.path.empty())
            return;
        const auto text = [&element] {
            QString value = QString::fromLatin1(element.bytes);
            value.remove(QChar::Null);
            return value.trimmed();
        };
        switch (element.tag) {
        case sopClassTag: m_sopClass = text(); break;
        case sopInstanceTag: m_instance = hashOf(text().toLatin1()); break;
        case conversionTypeTag: m_conversion = text(); break;
        case framesTag: m_frames = text().toInt(); break;
        case burnedInTag: m_burnedIn = text(); break;
        default: break;
        }
    }

    void writeInto(LoadedFile &file) const
    {
        file.record.instance = m_instance;
        if (!file.walk.pixelElement.isEmpty())
            file.record.pixels = file.walk.encapsulated ? hashOfFragments(file.pixelData())
                                                        : hashOfFrames(file.pixelData(), m_frames);
        file.record.mayShow = mayShow();
    }

private:
    [[nodiscard]] QString mayShow() const
    {
        if (m_burnedIn == QStringLiteral("YES"))
            return Texts::tr("Burned In Annotation is YES");
        if (const char *const reason = reasonOf(m_sopClass))
            return Texts::tr(reason);
        if (m_conversion == QStringLiteral("SD") || m_conversion == QStringLiteral("SI") ||
            m_conversion == QStringLiteral("DF"))
            return Texts::tr("scanned document or film");
        return {};
    }

    QString m_sopClass;
    QString m_conversion;
    QString m_burnedIn;
    quint64 m_instance = 0;
    qsizetype m_frames = 1;
};

} // namespace

QByteArrayView LoadedFile::preamble() const
{
    return walk.hasPreamble ? QByteArrayView(bytes).first(preambleSize) : QByteArrayView();
}

QByteArrayView LoadedFile::behindEnd() const
{
    return QByteArrayView(bytes).sliced(walk.end);
}

QByteArrayView LoadedFile::pixelData() const
{
    if (walk.pixelElement.isEmpty())
        return {};
    const QByteArrayView dataSet =
        walk.deflated ? QByteArrayView(walk.inflated) : QByteArrayView(bytes).sliced(walk.dataSet);
    return dataSet.sliced(walk.pixelValue.start, walk.pixelValue.size());
}

LoadedFile loadFile(const QString &path)
{
    std::optional<QByteArray> bytes = readBytes(path);
    struct stat now = {};
    if (bytes && ::stat(systemPath(path).constData(), &now) == 0 && now.st_size == bytes->size())
        return lookAt(std::move(*bytes));
    LoadedFile file;
    file.record.reason = bytes ? Texts::tr("it changed while it was read")
                               : Texts::tr("it cannot be read, or is larger than 1 GiB");
    return file;
}

LoadedFile lookAt(QByteArray bytes)
{
    LoadedFile file;
    file.bytes = std::move(bytes);
    file.walk = walk(file.bytes);
    file.record.bytes = static_cast<quint64>(file.bytes.size());
    file.record.content = hashOf(file.bytes);
    file.record.reason = file.walk.reason;
    switch (file.walk.kind) {
    case Walk::Kind::Object: file.record.state = FileRecord::State::Object; break;
    case Walk::Kind::NoObject: file.record.state = FileRecord::State::NoObject; break;
    case Walk::Kind::Damaged: file.record.state = FileRecord::State::Damaged; break;
    }
    return file;
}

void readLoaded(LoadedFile &file, const ElementVisit &visit)
{
    if (file.record.state != FileRecord::State::Object)
        return;
    Facts facts;
    const bool whole = readObject(file.bytes, file.walk, [&](const Element &element) {
        facts.see(element);
        visit(element);
    });
    facts.writeInto(file);
    if (!whole) {
        file.record.state = FileRecord::State::Damaged;
        file.record.reason = Texts::tr("it is not read as a whole");
    }
}

} // namespace dravolin::check
