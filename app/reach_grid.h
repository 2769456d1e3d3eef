// The strategy grid weighted by how often each hand gets to the node.
#pragma once

#include <QString>
#include <QVariantList>
#include <QVariantMap>

/// Label ("AA", "AKs", "AKo") of two card texts in either order; empty if one of them is none.
QString handClassLabelFromCards(const QString& c1, const QString& c2);

/// The grid `base` with "weights" and "actionProbs" taken from the combos of its node: their mean
/// weight, and their play weighted with it. With a category (in lower case, trimmed) only the hands
/// in it count, and labels without one are left out; with an empty one and no combos `base` stays.
QVariantMap reachGrid(QVariantMap base, const QVariantList& combos, const QString& category);
