#ifndef QUOR_BENCH_XML_COMPETITION_HPP
#define QUOR_BENCH_XML_COMPETITION_HPP

// A catalog of ten megabytes in memory, and what becomes of its events: each name, value and
// text is handed on as a string.

#include <cstdint>
#include <string>

namespace xml_bench {

inline constexpr char const *events_name = "10 MB of catalog, an event each";
inline constexpr char const *tokens_name = "10 MB of catalog, a list of tokens";

std::string const &document();

/// What events are handed to. Texts may come in as many pieces as the parser likes.
class receiver {
public:
	virtual ~receiver() = default;
	virtual void open(std::string const &name) = 0;
	virtual void close(std::string const &name) = 0;
	virtual void attribute(std::string const &name, std::string const &value) = 0;
	virtual void text(std::string const &piece) = 0;
	virtual void comment(std::string const &body) = 0;
};

using reader = void (*)(std::string const &document, receiver &to);

/// Compares everything that the reader reports with what the library does, then measures it.
void compete(char const *operation, std::string const &name, reader read);

} // namespace xml_bench

#endif
