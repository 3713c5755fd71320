#include "check/ObjectReader.h"

#include "check/AssertionGuard.h"
#include "check/LoadedModule.h"

#include <QtEndian>

namespace dravolin::check {

namespace {

constexpr qsizetype preambleSize = 128;
constexpr Tag metaLengthTag = 0x00020000;
constexpr Tag syntaxTag = 0x00020010;

void appendElement(QByteArray &bytes, Tag tag, const char *vr, const QByteArray &value)
{
    const quint16 header[] = {qToLittleEndian(static_cast<quint16>(tag >> 16)),
                              qToLittleEndian(static_cast<quint16>(tag & 0xFFFF))};
    const auto length = qToLittleEndian(static_cast<quint16>(value.size()));
    bytes.append(reinterpret_cast<const char *>(header), sizeof(header));
    bytes.append(vr);
    bytes.append(reinterpret_cast<const char *>(&length), sizeof(length));
    bytes.append(value);
}

// What stands in front of any data set for GDCM: sound meta information, whatever the file's own is like.
struct Front
{
    explicit Front(const Walk &walk)
    {
        QByteArray meta = walk.meta;
        const QByteArray uid = walk.syntax.isBigEndian  ? QByteArray("1.2.840.10008.1.2.2", 20)
                               : walk.syntax.isExplicit ? QByteArray("1.2.840.10008.1.2.1", 20)
                                                        : QByteArray("1.2.840.10008.1.2", 18);
        appendElement(meta, syntaxTag, "UI", uid);
        const auto size = qToLittleEndian(static_cast<quint32>(meta.size()));
        bytes = QByteArray(preambleSize, '\0') + "DICM";
        appendElement(bytes, metaLengthTag, "UL", {reinterpret_cast<const char *>(&size), sizeof(size)});
        bytes += meta;
        contents = {walk.metaContents.values + 2,
                    walk.metaContents.bytes + sizeof(size) + static_cast<quint64>(uid.size())};
    }

    QByteArray bytes;
    Contents contents;
};

// The object's bytes without those behind its end and without its pixel data, which nothing reads.
QByteArray bytesToRead(const QByteArray &front, const QByteArray &file, const Walk &walk)
{
    const QByteArrayView dataSet = walk.deflated
                                       ? QByteArrayView(walk.inflated)
                                       : QByteArrayView(file).sliced(walk.dataSet, walk.end - walk.dataSet);
    QByteArray bytes;
    bytes.reserve(front.size() + dataSet.size() - walk.pixelElement.size());
    bytes += front;
    if (walk.pixelElement.isEmpty())
        return bytes.append(dataSet);
    bytes.append(dataSet.first(walk.pixelElement.start));
    return bytes.append(dataSet.sliced(walk.pixelElement.end));
}

// Keeps where in the object a value stands, and what has been seen.
class Visitor final : public ObjectVisitor
{
public:
    explicit Visitor(const ElementVisit &visit) : m_visit(visit), m_sets(1) {}

    void characterSets(QByteArrayView definedTerms) override { m_sets.back() = CharacterSets(definedTerms); }
    void beginItem(Tag sequence, size_t item) override
    {
        m_path.push_back({sequence, item});
        m_sets.push_back(m_sets.back());
    }
    void endItem() override
    {
        m_path.pop_back();
        m_sets.pop_back();
    }
    void value(Tag tag, ValueForm form, QByteArrayView bytes) override
    {
        m_contents.values += bytes.isEmpty() ? 0 : 1;
        m_contents.bytes += static_cast<quint64>(bytes.size());
        m_visit({tag, form.kind, form.numbers, form.person, bytes, m_path, m_sets.back()});
    }
    [[nodiscard]] bool isSequence(QByteArrayView value) const override { return holdsItems(value); }

    [[nodiscard]] const Contents &contents() const { return m_contents; }

private:
    const ElementVisit &m_visit;
    Contents m_contents;
    std::vector<PathStep> m_path;
    std::vector<CharacterSets> m_sets; // in force there, outermost first
};

// For the meta information, whose transfer syntax is the one that GDCM was told: a visitor gets the file's
// own.
ElementVisit metaVisit(const Walk &walk, const ElementVisit &visit)
{
    return [&walk, &visit](const Element &element) {
        const bool isSyntax = element.tag == syntaxTag;
        visit({element.tag, element.kind, element.numbers, element.person,
               isSyntax ? QByteArrayView(walk.uid) : element.bytes, element.path, element.sets});
    };
}

bool readAll(const GdcmModule &gdcm, const QByteArray &bytes, const Front &front, const Walk &walk,
             const ElementVisit &visit)
{
    const ElementVisit visitMeta = metaVisit(walk, visit);
    Visitor meta(visitMeta);
    Visitor dataSet(visit);
    return gdcm.read(bytes, meta, dataSet) && meta.contents() == front.contents &&
           dataSet.contents() == walk.contents;
}

const LoadedModule &loaded()
{
    static const LoadedModule module = loadModule(modulePath());
    return module;
}

} // namespace

QString initialiseReader()
{
    return loaded().error;
}

bool readObject(const QByteArray &file, const Walk &walk, const ElementVisit &visit)
{
    const GdcmModule *const gdcm = loaded().module;
    if (!gdcm)
        return false;
    const Front front(walk);
    const QByteArray bytes = bytesToRead(front.bytes, file, walk);
    // GDCM takes a data set without any attribute for a failure of its own
    if (bytes.size() == front.bytes.size())
        return false;
    return survivesAssertions([&] { return readAll(*gdcm, bytes, front, walk, visit); });
}

QString pathText(const std::vector<PathStep> &path, Tag tag)
{
    QString text;
    for (const PathStep &step : path)
        text += tagText(step.sequence) + u'[' + QString::number(step.item) + QStringLiteral("].");
    return text + tagText(tag);
}

QString attributeName(Tag tag)
{
    const GdcmModule *const gdcm = loaded().module;
    return gdcm ? QString::fromLatin1(gdcm->attributeName(tag)) : QString();
}

} // namespace dravolin::check
