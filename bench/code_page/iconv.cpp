// The C library's converter, opened once for each encoding.

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include <iconv.h>

#include "code_page/texts.hpp"
#include "frame/frame.hpp"

namespace bench_code_page {
namespace {

using quor::strings::ustring16;

class with_iconv : public converter {
public:
	explicit with_iconv(char const *charset)
	    : m_charset(charset), m_decoder(::iconv_open("UTF-16LE", charset)),
	      m_encoder(::iconv_open(charset, "UTF-16LE")) {}
	with_iconv(with_iconv const &) = delete;
	with_iconv &operator=(with_iconv const &) = delete;
	~with_iconv() override {
		::iconv_close(m_decoder);
		::iconv_close(m_encoder);
	}

	ustring16 decode(std::string const &bytes) override { return converted<ustring16>(m_decoder, bytes, bytes.size()); }
	std::string encode(ustring16 const &units) override {
		return converted<std::string>(m_encoder, units, units.size() * 3);
	}

private:
	template <class Result, class Text>
	Result converted(iconv_t with, Text const &text, std::size_t room) const {
		constexpr std::size_t unit = sizeof(typename Result::value_type);
		// As fast as it can be: into room that is there already.
		static thread_local std::vector<typename Result::value_type> result;
		result.resize(std::max(result.size(), room));
		// The text isn't written to.
		char *in = reinterpret_cast<char *>(const_cast<typename Text::value_type *>(text.data()));
		char *out = reinterpret_cast<char *>(result.data());
		std::size_t in_left = text.size() * sizeof(typename Text::value_type);
		std::size_t out_left = room * unit;
		if (::iconv(with, &in, &in_left, &out, &out_left) == static_cast<std::size_t>(-1)) {
			bench::disagree(std::string("iconv of ") + m_charset);
		}
		return Result(result.data(), room - out_left / unit);
	}

	char const *m_charset;
	iconv_t m_decoder;
	iconv_t m_encoder;
};

void describe() {
	compete("iconv", [](sample const &text) -> converter * { return new with_iconv(text.charset); });
	for (sample const &text : samples()) {
		if (text.bytes.size() > 1000) {
			bench::limit("read 1 MB of " + std::string(text.name), "iconv", text.most);
			bench::limit("write 1 MB of " + std::string(text.name), "iconv", text.most);
		}
	}
}

bench::entry const added(&describe);

} // namespace
} // namespace bench_code_page
