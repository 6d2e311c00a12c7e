#pragma once

/// Texts that displays give for values of every built-in type, and the children of composed ones.
void traceDisplays();
/// Scripted operations on a view, seen through its model.
void traceViews();
/// Random operations on a set and its view.
void traceRandomViews(unsigned seed, int operations);
