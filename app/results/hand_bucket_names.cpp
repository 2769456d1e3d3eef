#include "results/hand_bucket_names.h"

#include <QCoreApplication>

namespace {

/// For the tool that collects the texts to translate; the names themselves come from the core.
[[maybe_unused]] constexpr const char* kNames[] = {
    QT_TRANSLATE_NOOP("HandBuckets", "air"),
    QT_TRANSLATE_NOOP("HandBuckets", "back door flush draw"),
    QT_TRANSLATE_NOOP("HandBuckets", "bottom pair"),
    QT_TRANSLATE_NOOP("HandBuckets", "dry pair"),
    QT_TRANSLATE_NOOP("HandBuckets", "flush"),
    QT_TRANSLATE_NOOP("HandBuckets", "flush draw"),
    QT_TRANSLATE_NOOP("HandBuckets", "full house"),
    QT_TRANSLATE_NOOP("HandBuckets", "gutter"),
    QT_TRANSLATE_NOOP("HandBuckets", "middle pair"),
    QT_TRANSLATE_NOOP("HandBuckets", "missed FD"),
    QT_TRANSLATE_NOOP("HandBuckets", "missed OESD"),
    QT_TRANSLATE_NOOP("HandBuckets", "missed gutter"),
    QT_TRANSLATE_NOOP("HandBuckets", "open ended straight draw"),
    QT_TRANSLATE_NOOP("HandBuckets", "overpair"),
    QT_TRANSLATE_NOOP("HandBuckets", "quads"),
    QT_TRANSLATE_NOOP("HandBuckets", "set"),
    QT_TRANSLATE_NOOP("HandBuckets", "straight"),
    QT_TRANSLATE_NOOP("HandBuckets", "straight flush"),
    QT_TRANSLATE_NOOP("HandBuckets", "top pair"),
    QT_TRANSLATE_NOOP("HandBuckets", "trips"),
    QT_TRANSLATE_NOOP("HandBuckets", "two pair"),
};

}  // namespace

QString handBucketDisplayName(const QString& name) {
  return QCoreApplication::translate("HandBuckets", name.toUtf8().constData());
}
