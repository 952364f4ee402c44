#ifndef QUOR_BENCH_LOADING_COMPETITION_HPP
#define QUOR_BENCH_LOADING_COMPETITION_HPP

// Catalog files on disk, and what a program then knows: a text by the name of each message.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace loading_bench {

inline constexpr std::size_t sizes[] = {1'000, 100'000};

std::string operation_name(std::size_t messages);

/// The file with that many messages, made when it is asked for first and removed at the end.
char const *catalog_file(std::size_t messages);

/// What somebody has loaded. Arguments stand in braces in the text.
class loaded {
public:
	virtual ~loaded() = default;
	virtual std::size_t size() const = 0;
	virtual std::string text(std::string_view name) const = 0;
};

/// Loads the file and hands on the result; it is given up at the end of the call.
using loader = void (*)(char const *path, std::function<void(loaded const &)> const &use);

/// Compares all texts with those of the library, then measures loading and giving up, and the
/// memory that a process needs at most.
void compete(std::string const &name, loader load);

} // namespace loading_bench

#endif
