// What nearly every test reads.
#pragma once

#include "../../cmake/pch.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <random>
