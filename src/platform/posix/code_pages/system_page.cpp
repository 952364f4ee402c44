#include "platform/posix/code_pages/system_page.hpp"

#include <cstddef>

#include <langinfo.h>

namespace QUOR_2_9::platform {
namespace {

struct charset {
	std::string_view name;
	types::uint32 page;
};

/// Names as C libraries give them, without `-` and `_`. The ISO and EUC charsets are part
/// of the page beside them.
constexpr charset charsets[] = {
    {"SHIFTJIS", 932},     {"SJIS", 932},         {"WINDOWS31J", 932},   {"CP932", 932},        {"GBK", 936},
    {"CP936", 936},        {"GB2312", 936},       {"EUCCN", 936},        {"EUCKR", 949},        {"UHC", 949},
    {"CP949", 949},        {"BIG5", 950},         {"CP950", 950},        {"CP1250", 1250},      {"CP1251", 1251},
    {"CP1252", 1252},      {"CP1253", 1253},      {"CP1254", 1254},      {"CP1255", 1255},      {"CP1256", 1256},
    {"CP1257", 1257},      {"CP1258", 1258},      {"KOI8R", 20866},      {"KOI8U", 21866},      {"ISO88591", 28591},
    {"ISO88592", 28592},   {"ISO88593", 28593},   {"ISO88594", 28594},   {"ISO88595", 28595},   {"ISO88596", 28596},
    {"ISO88597", 28597},   {"ISO88598", 28598},   {"ISO88599", 28599},   {"ISO885915", 28605},  {"WINDOWS1250", 1250},
    {"WINDOWS1251", 1251}, {"WINDOWS1252", 1252}, {"WINDOWS1253", 1253}, {"WINDOWS1254", 1254}, {"WINDOWS1255", 1255},
    {"WINDOWS1256", 1256}, {"WINDOWS1257", 1257}, {"WINDOWS1258", 1258},
};

/// Whether the names agree but for case, `-` and `_`.
bool is_same_charset(std::string_view given, std::string_view plain) noexcept {
	std::size_t at = 0;
	for (char const unit : given) {
		if (unit == '-' || unit == '_') {
			continue;
		}
		char const upper = unit >= 'a' && unit <= 'z' ? static_cast<char>(unit - 'a' + 'A') : unit;
		if (at == plain.size() || plain[at] != upper) {
			return false;
		}
		++at;
	}
	return at == plain.size();
}

} // namespace

types::uint32 page_of_charset(std::string_view name) noexcept {
	for (charset const &known : charsets) {
		if (is_same_charset(name, known.name)) {
			return known.page;
		}
	}
	return 65001;
}

types::uint32 system_page() noexcept {
	return page_of_charset(::nl_langinfo(CODESET));
}

} // namespace QUOR_2_9::platform
