#pragma once

#include <QtGlobal>

#include <functional>

namespace dravolin {

// Calls `work` with every number from 0 to `count` - 1, on `workers` threads, each number once, in ascending
// order of beginning. Returns when all are done, or, once `stop` gives true, when what has begun is done.
// `work` and `stop` are called from several threads at once. `meanwhile` is called in the calling thread
// ten to forty times a second and once at the end.
void workThrough(qsizetype count, int workers, const std::function<void(qsizetype)> &work,
                 const std::function<bool()> &stop, const std::function<void()> &meanwhile = {});

} // namespace dravolin
