#include <quor/config/config_token.hpp>

#include <array>
#include <cstddef>

namespace QUOR_2_9::config {
namespace {

struct display {
	char const *name;
	/// Whether the token's text and a closing bracket follow.
	bool with_text;
};

/// By the number of the kind.
constexpr std::array<display, 32> displays{{
    {"T_VAR :[", true},      {"T_NUM", false},        {"T_NEWLINE", false},  {"T_TABCHAR", false},
    {"T_UNKNOWN:[", true},   {"T_END", false},        {"T_SPACE", false},    {"T_EQ", false},
    {"T_EQEQ", false},       {"T_GT", false},         {"T_GTEQ", false},     {"T_LT", false},
    {"T_LTEQ", false},       {"T_COLON", false},      {"T_COLONEQ", false},  {"T_POUND", false},
    {"T_FSFS", false},       {"T_DOT", false},        {"T_SBRACKET", false}, {"T_EBRACKET", false},
    {"T_PLUS", false},       {"T_MINUS", false},      {"T_PLUSEQ", false},   {"T_MINUSEQ", false},
    {"unknown type", false}, {"unknown type", false}, {"T_TIMES", false},    {"T_DIV", false},
    {"T_TIMESEQ", false},    {"T_DIVEQ", false},      {"T_STRING:[", true},  {"T_NON_ALPHA_NUM:[", true},
}};

} // namespace

config_token::config_token() = default;

config_token::config_token(config_token const &other) = default;

config_token &config_token::operator=(config_token const &other) = default;

config_token::~config_token() = default;

std::string config_token::CvtTokStr() const {
	auto const index = static_cast<std::size_t>(token_type);
	if (index >= displays.size()) {
		return "unknown type";
	}
	display const &shown = displays[index];
	std::string result(shown.name);
	if (shown.with_text) {
		result.append(token_text).append(1, ']');
	}
	return result;
}

} // namespace QUOR_2_9::config
