// ICU's converters, opened once for each encoding.

#include <stdexcept>
#include <string>

#include <unicode/ucnv.h>

#include "code_page/texts.hpp"
#include "frame/frame.hpp"

namespace bench_code_page {
namespace {

using quor::strings::ustring16;

class with_icu : public converter {
public:
	explicit with_icu(char const *name) {
		UErrorCode error = U_ZERO_ERROR;
		m_converter = ucnv_open(name, &error);
		check(error);
	}
	with_icu(with_icu const &) = delete;
	with_icu &operator=(with_icu const &) = delete;
	~with_icu() override { ucnv_close(m_converter); }

	ustring16 decode(std::string const &bytes) override {
		ustring16 result;
		result.resize(bytes.size() + 1);
		UErrorCode error = U_ZERO_ERROR;
		result.resize(
		    static_cast<std::size_t>(ucnv_toUChars(m_converter, result.data(), static_cast<int>(result.size()),
		                                           bytes.data(), static_cast<int>(bytes.size()), &error)));
		check(error);
		return result;
	}

	std::string encode(ustring16 const &units) override {
		std::string result;
		result.resize(units.size() * 3 + 1);
		UErrorCode error = U_ZERO_ERROR;
		result.resize(
		    static_cast<std::size_t>(ucnv_fromUChars(m_converter, result.data(), static_cast<int>(result.size()),
		                                             units.data(), static_cast<int>(units.size()), &error)));
		check(error);
		return result;
	}

private:
	static void check(UErrorCode error) {
		if (U_FAILURE(error)) {
			throw std::runtime_error(u_errorName(error));
		}
	}

	UConverter *m_converter = nullptr;
};

void describe() {
	compete("ICU", [](sample const &text) -> converter * {
		bool const korean = text.page == quor::strings::code_page::cp_949;
		return new with_icu(korean ? "windows-949" : text.charset);
	});
}

bench::entry const added(&describe);

} // namespace
} // namespace bench_code_page
