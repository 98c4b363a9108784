// Controls by their names.
#pragma once

#include <QWidget>
#include <gtest/gtest.h>

namespace ostrand::test {

/// The control of that name below a window; the test fails without one.
template <typename T>
T *FindControl(const QWidget &window, const char *name) {
    T *found = window.findChild<T *>(QLatin1String(name));
    EXPECT_TRUE(found) << name;
    return found;
}

} // namespace ostrand::test
