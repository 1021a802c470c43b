#pragma once

// What nearly every test needs.

#include "support/DrainUntil.h"
#include "support/Images.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <map>
#include <memory>
#include <numbers>
#include <optional>
#include <ostream>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <variant>
#include <vector>

namespace pelmira {

using namespace Qt::StringLiterals;
using test::discImage;
using test::drainUntil;
using test::encoded;
using test::farthest;
using test::paintedImage;
using test::placeImage;
using test::plainImage;
using test::TemporaryFolder;

} // namespace pelmira
