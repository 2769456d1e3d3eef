// What the controller looks at before it starts a solve.
#pragma once

#include <QString>
#include <QVariantMap>

/// The log line of a start request.
QString describeSolveRequest(const QVariantMap& map);

/// True if two adjacent characters of the text are ranks. It says nothing about validity: a wrong
/// range fails in the worker, with the parser's text.
bool namesAnyHand(const QString& rangeText);

/// Why a request can't be solved, as the status text; empty if nothing stands against it.
QString refusalOf(const QVariantMap& map);
