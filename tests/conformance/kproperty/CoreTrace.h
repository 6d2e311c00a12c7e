#pragma once

#include <KProperty>

/// Scripted operations on single properties, list data and composed properties.
void traceProperties();
/// Sets one value after the other.
void traceValue(const char *what, KProperty &p, const QVariantList &values);
/// Which values are equal, and which are stored over which.
void traceValues();
/// Scripted operations on sets, iterators and buffers.
void traceSets();
/// Random operations on sets: the same seed gives the same operations in every build.
void traceRandomSets(unsigned seed, int operations);
