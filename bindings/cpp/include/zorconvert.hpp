// SPDX-License-Identifier: MIT
// Plans of zorconvert.h for C++17: freed by their destructor, run on views. Link libzorconvert (zorcc::convert).
//
//     zorcc::Plan plan({"nv12", "bt709", zorRangeLimited, size}, {"rgb24", nullptr, zorRangeDefault, size});
//     std::puts(plan.describe());
//     plan.run(nv12, rgb); // SemiPlanar<const uint8_t>, Interleaved<uint8_t, 3>
//
// Errors are those of zorcc/errors.hpp. A plan that was made with a std::error_code& and cannot be run still describes
// what is missing.
#ifndef ZORCONVERT_HPP
#define ZORCONVERT_HPP

#include <memory>

#include "zorcc/views.hpp"
#include "zorconvert.h"

namespace zorcc {

// All options have their defaults.
struct PlanOptions : ZorPlanOptions {
    PlanOptions() noexcept : ZorPlanOptions{} { structBytes = sizeof(ZorPlanOptions); }
};

class Plan {
public:
    template <class E = Throw, class = detail::Result<E>>
    Plan(const ZorPicture& from, const ZorPicture& to, const PlanOptions& options,
         E&& errors = {}) noexcept(detail::quiet<E>)
        : plan(zorPlanCreate(&from, &to, &options)), size(from.size)
    {
        zorPictureLayout(&from, &source);
        zorPictureLayout(&to, &destination);
        detail::finish(status(), describe(), errors);
    }

    template <class E = Throw, class = detail::Result<E>>
    Plan(const ZorPicture& from, const ZorPicture& to, E&& errors = {}) noexcept(detail::quiet<E>)
        : Plan(from, to, PlanOptions(), static_cast<E&&>(errors))
    {
    }

    ZorStatus status() const noexcept { return zorPlanStatus(plan.get()); }
    const char* describe() const noexcept { return zorPlanDescribe(plan.get()); }
    const char* losses() const noexcept { return zorPlanLosses(plan.get()); }
    const ZorLayout& sourceLayout() const noexcept { return source; }
    const ZorLayout& destinationLayout() const noexcept { return destination; }
    ZorPlan* get() const noexcept { return plan.get(); } // for the functions of zorconvert.h

    // One thread at a time. zorStatusBadSize where a view has another size than the pictures, zorStatusBadArgument
    // where it has other planes or samples than the picture's format, zorStatusBadStep beyond the range of int.
    template <class S, class D, class E = Throw>
    detail::Result<E> run(const S& src, const D& dst, E&& errors = {}) noexcept(detail::quiet<E>)
    {
        return detail::finish(tryRun(src, dst), "zorcc::Plan::run", errors);
    }

private:
    struct Free {
        void operator()(ZorPlan* unused) const noexcept { zorPlanFree(unused); }
    };
    std::unique_ptr<ZorPlan, Free> plan;
    ZorSize size;
    ZorLayout source = {}, destination = {};

    template <class S, class D> ZorStatus tryRun(const S& src, const D& dst) const noexcept
    {
        if (status() != zorStatusOk) return status();
        if (!detail::equal(src.size, size) || !detail::equal(dst.size, size)) return zorStatusBadSize;
        if (!fits(src, source) || !fits(dst, destination)) return zorStatusBadArgument;
        int from[S::planes], to[D::planes];
        if (!detail::stepsFit(src, from) || !detail::stepsFit(dst, to)) return zorStatusBadStep;
        const void* read[S::planes];
        void* written[D::planes];
        for (int p = 0; p < S::planes; ++p) read[p] = src.data[p];
        for (int p = 0; p < D::planes; ++p) written[p] = dst.data[p];
        return zorPlanRun(plan.get(), read, from, written, to);
    }

    template <class T> static constexpr ZorSample sampleOf() noexcept
    {
        if (std::is_floating_point_v<T>) return zorSample32f;
        if (sizeof(T) == 4) return zorSample32s;
        if (sizeof(T) == 2) return std::is_signed_v<T> ? zorSample16s : zorSample16u;
        return std::is_signed_v<T> ? zorSample8s : zorSample8u;
    }

    template <class V> static bool fits(const V& view, const ZorLayout& layout) noexcept
    {
        constexpr bool hasFields = V::arrangement == Arrangement::packed16;
        bool same = layout.planes == V::planes && layout.sample == sampleOf<typename V::Sample>() &&
                    (layout.fieldBits[0] != 0) == hasFields;
        for (int p = 0; same && p < V::planes; ++p)
            same = layout.rowBytes[p] == V::rowBytes(p, view.size.width) &&
                   layout.rows[p] == V::groups(p, view.size).height;
        return same;
    }
};

} // namespace zorcc

#endif
