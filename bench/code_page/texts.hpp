#ifndef QUOR_BENCH_CODE_PAGE_TEXTS_HPP
#define QUOR_BENCH_CODE_PAGE_TEXTS_HPP

// What all competitors convert: for some encodings a text of 1 MB in bytes and in UTF-16,
// and one of 16 bytes.

#include <string>
#include <vector>

#include <quor/quor.hpp>

namespace bench_code_page {

using encoding = quor::strings::code_page::encoding_type;

struct sample {
	encoding page;
	char const *name;
	/// The charset as others call it.
	char const *charset;
	std::string bytes;
	quor::strings::ustring16 units;
	/// How much the library may take beside `iconv` for a text of this size.
	double most;
};

std::vector<sample> const &samples();

/// What a competitor converts with. They are made once, so that opening isn't measured.
class converter {
public:
	virtual ~converter() = default;
	virtual quor::strings::ustring16 decode(std::string const &bytes) = 0;
	virtual std::string encode(quor::strings::ustring16 const &units) = 0;
};

/// Compares what the converter makes with the samples, then names what is measured.
void compete(char const *competitor, converter *(*make)(sample const &));

} // namespace bench_code_page

#endif
