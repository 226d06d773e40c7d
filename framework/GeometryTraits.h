#pragma once
// Recognises the system's POINT, SIZE and RECT structures without naming
// them, so the portable geometry types can convert to and from them in the
// Windows layer while the core never includes the system headers.
#include "framework/Types.h"

#include <concepts>
#include <type_traits>

namespace vu {

template <class T, class Self>
concept PointLike = !std::is_same_v<std::remove_cv_t<T>, Self> && std::is_standard_layout_v<T> &&
                    sizeof(T) == 2 * sizeof(LONG) && requires(T t) {
    { t.x } -> std::same_as<LONG&>;
    { t.y } -> std::same_as<LONG&>;
};

template <class T, class Self>
concept SizeLike = !std::is_same_v<std::remove_cv_t<T>, Self> && std::is_standard_layout_v<T> &&
                   sizeof(T) == 2 * sizeof(LONG) && requires(T t) {
    { t.cx } -> std::same_as<LONG&>;
    { t.cy } -> std::same_as<LONG&>;
};

template <class T, class Self>
concept RectLike = !std::is_same_v<std::remove_cv_t<T>, Self> && std::is_standard_layout_v<T> &&
                   sizeof(T) == 4 * sizeof(LONG) && requires(T t) {
    { t.left } -> std::same_as<LONG&>;
    { t.top } -> std::same_as<LONG&>;
    { t.right } -> std::same_as<LONG&>;
    { t.bottom } -> std::same_as<LONG&>;
};

} // namespace vu
