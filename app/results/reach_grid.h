// The strategy grid weighted by how often each hand gets to the node.
#pragma once

#include <QString>
#include <QVariantList>
#include <QVariantMap>

/// The grid `base` with "weights" and "actionProbs" taken from the combos of its node: their mean
/// weight, and their play weighted with it. With a category (in lower case, trimmed) only the hands
/// in it count, and labels without one are left out; with an empty one and no combos `base` stays.
QVariantMap reachGrid(QVariantMap base, const QVariantList& combos, const QString& category);
