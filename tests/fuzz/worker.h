#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

/// An input that a worker couldn't get through.
struct Failure {
    std::size_t input;
    /// What became of the worker, such as "signal 11".
    std::string reason;
};

/// Does inputs one after the other in a process of its own, and notices what doesn't end as it may: by a signal, by a
/// finding of the sanitizers, by leaving the process, not in time, or with memory that nobody holds.
///
/// \param first number of the first input
/// \param end number after the last input
/// \param work does the next input; called once for each, in the worker process
/// \param secondsPerInput after so long, an input is taken to have no end
/// \returns the first failure, after which the worker is gone; nothing if all went well
/// \throws std::runtime_error if there is no worker to be had
std::optional<Failure> runInWorker(std::size_t first, std::size_t end, const std::function<void()>& work,
                                   unsigned secondsPerInput);
