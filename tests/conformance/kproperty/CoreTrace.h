#pragma once

/// Scripted operations on single properties, list data and composed properties.
void traceProperties();
/// Scripted operations on sets, iterators and buffers.
void traceSets();
/// Random operations on sets: the same seed gives the same operations in every build.
void traceRandomSets(unsigned seed, int operations);
