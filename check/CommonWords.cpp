#include "check/CommonWords.h"

#include <unordered_set>

namespace dravolin::check {

namespace {

constexpr char16_t commonWords[] =
    u"abdomen acquisition adult angio ankle aorta archive arm art artery axial back bak baseline black body "
    u"bone "
    u"brain breast brown cardiac case center central cervical chest child clinic clinical close collection "
    u"contrast control copy cor coronal cranial cross data date dcm default department derived dicom "
    u"dicomdir "
    u"diffusion disc disk doctor dose dual early elbow enhanced error example exam export face female field "
    u"file "
    u"files filter final finger foot frame free front green hand head heart help high hill hip hospital "
    u"human "
    u"image images imaging instance intern jan june karl klein knee kidney king klinik krankenhaus lang "
    u"large "
    u"lateral late left leg less light list liver local localizer long love low lumbar lung male manual mark "
    u"mask "
    u"mass max may medical medium mixed mode modality motion multi name native neck neuro new none normal "
    u"note "
    u"number object order original other pain park patient pelvis perfusion phantom phase plain plane "
    u"planning "
    u"plus position post practice primary private prone protocol public quality radiology raw reason "
    u"reference "
    u"region report research result results rich right rose routine sagittal sample scan scanner scout "
    u"screen "
    u"secondary section segment sequence series serie short shoulder side single sinus site skull slice "
    u"small "
    u"soft special spin spine standard station stone store street stroke study studies subject supine sweet "
    u"table target task temp tera test text thick thin thorax tissue title total trial tumor type ultrasound "
    u"universal unit upper user value vein version vessel view visit volume wall weight white winter wood "
    u"work "
    u"wrist young";

constexpr char16_t dummies[] =
    u"anon anonym anonyme anonymized anonymised anonymous anonymisiert deidentified dummy empty missing n na "
    u"nil "
    u"no none null removed redacted undefined unknown unnamed unspecified xxx xxxx";

std::unordered_set<quint64> hashesOf(QStringView text)
{
    std::unordered_set<quint64> hashes;
    for (const Word &word : wordsOf(text))
        hashes.insert(word.hash);
    return hashes;
}

} // namespace

bool isCommon(std::span<const Word> words)
{
    static const std::unordered_set<quint64> common = hashesOf(commonWords);
    return words.size() == 1 && (common.contains(words[0].hash) || isDummy(words));
}

bool isDummy(std::span<const Word> words)
{
    static const std::unordered_set<quint64> known = hashesOf(dummies);
    return words.size() == 1 && known.contains(words[0].hash);
}

} // namespace dravolin::check
