#ifndef QUOR_CONFIG_CONFIG_TOKEN_HPP
#define QUOR_CONFIG_CONFIG_TOKEN_HPP

/// @file
/// One token of configuration text: what the scanner of `base_config_item`
/// (`quor/config/base_config_item.hpp`) fills, for classes that read a source of their own.
///
///     // in a class derived from base_config_item
///     config_token token;
///     unsigned int pos = 0;
///     while (get_token(text, pos, token) != config_token::T_END) {
///         std::cout << token.CvtTokStr() << '\n';
///     }
///
/// @since 2.9

#include <string>

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::config {

/// The kind of a token, its text and its place. A value type; many readers or one writer.
///
/// The scanner doesn't clear the record: a token that has no text (`T_SPACE`, `T_END`)
/// leaves the text of the token before it. One record is used for a whole text, and whoever
/// joins the texts of tokens decides by `token_type` which ones count.
/// @since 2.9
class QUOR_API config_token {
public:
	/// The kinds of tokens. The numbers are part of the interface. @since 2.9
	enum tok_types : int {
		T_VAR = 0,            ///< A run of ASCII letters; digits and `_` end it.
		T_NUM = 1,            ///< A run of decimal digits; no sign, point or exponent.
		T_NEWLINE = 2,        ///< LF or CR LF; the text is one LF.
		T_TABCHAR = 3,        ///< One tab.
		T_UNKNOWN = 4,        ///< A carriage return without line feed.
		T_END = 5,            ///< The end of the text; changes no other field.
		T_SPACE = 6,          ///< A run of blanks (0x20); stores no text.
		T_EQ = 7,             ///< `=`
		T_EQEQ = 8,           ///< `==`
		T_GT = 9,             ///< `>`
		T_GTEQ = 10,          ///< `>=`
		T_LT = 11,            ///< `<`
		T_LTEQ = 12,          ///< `<=`
		T_COLON = 13,         ///< `:`
		T_COLONEQ = 14,       ///< `:=`
		T_POUND = 15,         ///< `#`
		T_FSFS = 16,          ///< `//`
		T_DOT = 17,           ///< `.`
		T_SBRACKET = 18,      ///< `[`
		T_EBRACKET = 19,      ///< `]`
		T_PLUS = 20,          ///< `+`
		T_MINUS = 21,         ///< `-`
		T_PLUSEQ = 22,        ///< `+=`
		T_MINUSEQ = 23,       ///< `-=`
		T_COMMENT_CLOSE = 24, ///< `*/`, for which the scanner returns `T_FSFS`.
		T_COMMENT_OPEN = 25,  ///< Never produced: `/*` is `T_DIV` and `T_TIMES`.
		T_TIMES = 26,         ///< `*`
		T_DIV = 27,           ///< `/`
		T_TIMESEQ = 28,       ///< `*=`
		T_DIVEQ = 29,         ///< `/=`
		T_STRING = 30,        ///< Text in double quotes; `token_text` is what stands between them.
		T_NON_ALPHA_NUM = 31  ///< Any other single byte.
	};

	/// An empty text; the other fields mean nothing until the scanner has set them.
	/// @since 2.9
	config_token();
	/// Copies all four fields. @since 2.9
	config_token(config_token const &other);
	/// Copies all four fields. @since 2.9
	config_token &operator=(config_token const &other);
	/// Drops the text. @since 2.9
	~config_token();

	/// The kind as text for people: its name, and for `T_VAR`, `T_UNKNOWN`, `T_STRING` and
	/// `T_NON_ALPHA_NUM` also `token_text` in full length, as in `T_STRING:[my text]` and
	/// `T_VAR :[word]`. The comment tokens and values that are no kind give "unknown type".
	/// @since 2.9
	std::string CvtTokStr() const;

	/// The token's text as it stood in the source, of a string without its quotes.
	/// @since 2.9
	strings::ustring8 token_text;
	/// The index one past the token: where the scanner goes on. Behind a string that isn't
	/// closed it is the text's size plus 1 or 2. @since 2.9
	unsigned int token_end = 0;
	/// The index of the token's first byte. @since 2.9
	unsigned int token_start = 0;
	/// The kind of token. @since 2.9
	tok_types token_type = T_END;
};

} // namespace QUOR_2_9::config

#endif
