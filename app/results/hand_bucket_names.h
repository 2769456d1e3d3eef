// The names of the hand categories in the language of the window.
#pragma once

#include <QString>

/// The name for display of a category, such as "top pair".
QString handBucketDisplayName(const QString& name);
