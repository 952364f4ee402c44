#ifndef QUOR_TESTS_REFERENCE_XMC_DOCUMENTS_HPP
#define QUOR_TESTS_REFERENCE_XMC_DOCUMENTS_HPP

// The rules of catalog files once more, straight over the public token list and with
// nothing clever: what the library's loader is compared with on random input. Knows no
// includes.

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <quor/parser/xml_token_stream.hpp>

namespace reference {

struct xmc_message {
	std::string locale;
	std::string meta;
	// Type and text of each piece.
	std::vector<std::pair<int, std::string>> items;
};

using xmc_catalogs = std::map<std::string, std::map<std::string, xmc_message>>;

struct xmc_fault {
	int type;
	std::string text;
};

class xmc_documents {
public:
	using token = QUOR_2_9::parser::xml_token_stream::token;

	explicit xmc_documents(std::vector<std::string> const &languages) : m_languages(languages) {}

	// Reads one text; the result is the fault, type 0 and its text for none.
	xmc_fault read(std::string const &text, std::string const &file) {
		QUOR_2_9::parser::xml_token_stream stream;
		auto const error = stream.parse(QUOR_2_9::strings::ustring8(text));
		if (error.code() != 0) {
			return {4, xml_text(error) + in("file", file)};
		}
		m_tokens.assign(stream.begin(), stream.end());
		m_at = 0;
		try {
			return document(file);
		} catch (xmc_fault const &fault) {
			return {fault.type, fault.text + in("file", file)};
		}
	}

	xmc_catalogs catalogs;

	static std::string text_of(int type, std::string const &data) {
		std::string const prefix = "xmc_file_loader::load_error - ";
		switch (type) {
		case 0:
			return prefix + "No Error";
		case 1:
			return prefix + "No catalog was loaded in file: \"" + data + "\"";
		case 3:
			return prefix + "File \"" + data + "\" was not found on disk";
		case 5:
			return prefix + "Invalid attibute \"" + data + "\"";
		case 6:
			return prefix + "Invalid element \"" + data + "\"";
		case 7:
			return prefix + "Not XMC file, root element is not XMC but \"" + data + "\"";
		case 8:
			return prefix + "XMC version \"" + data + "\" is not supported";
		case 9:
			return prefix + "Expected BR end tag not found";
		case 11:
			return prefix + "Expected arg (argument) end tag not found for argument \"" + data + "\"";
		case 12:
			return prefix + "Expected \"include\" end tag not found";
		case 13:
			return prefix + "Expected catalog end tag not found for catalog \"" + data + "\"";
		default:
			return prefix + "Unexpected parse error happen!";
		}
	}

	static std::string in(std::string const &what, std::string const &name) {
		std::string const kind = what == "file" ? what : what + " element";
		return "\n in " + kind + ": \"" + name + "\"";
	}

private:
	static std::string xml_text(QUOR_2_9::parser::xml_parser::parse_error const &error) {
		std::string const data = error.text();
		std::string const line = "\n at line: \"" + std::to_string(error.line()) + "\"";
		std::string const texts[] = {
		    "Unknown Parse error",
		    "Unexpected end of file during XML parsing",
		    "Mismatched end element \"" + data + "\" was found",
		    "No root element was found",
		    "Valid XML header not found",
		    "Unexpected character \"" + data + "\" found while parsing" + line,
		    "Missing \" while parsing attribute \"" + data + "\"" + line,
		    "Unknown enity being parsed" + line,
		    "Missing = sign for attribute \"" + data + "\"" + line,
		    "attribute \"" + data + "\" is being redefined" + line,
		    "Data found after root element" + line,
		};
		return "xmc_file_loader::load_error - " + texts[error.code()];
	}

	[[noreturn]] static void fail(int type, std::string const &data = std::string()) {
		throw xmc_fault{type, text_of(type, data)};
	}

	bool ended() const { return m_at == m_tokens.size(); }
	int type() const { return ended() ? -1 : static_cast<int>(m_tokens[m_at].type()); }
	std::string value() const { return ended() ? std::string() : std::string(m_tokens[m_at].value()); }
	bool is(int wanted, std::string const &text) const { return type() == wanted && value() == text; }

	std::size_t weight(std::string const &language) const {
		std::string id = language;
		if (id.size() != 1) {
			for (char &c : id) {
				c = c == '.' || c == '-' ? '_' : c;
			}
		}
		for (std::size_t i = 0; i != m_languages.size(); ++i) {
			if (m_languages[i] == id) {
				return i + 1;
			}
		}
		return 0;
	}

	void ignorable() {
		while (type() == 5 || type() == 6 || type() == 7) {
			++m_at;
		}
	}

	xmc_fault document(std::string const &file) {
		ignorable();
		if (ended()) {
			fail(7, "Value Not Defined");
		}
		if (!is(0, "xmc")) {
			fail(7, value());
		}
		++m_at;
		if (!is(2, "version")) {
			fail(5, value());
		}
		++m_at;
		if (!is(3, "1.0") && !is(3, "1.1")) {
			fail(8, value());
		}
		m_at += 2;
		ignorable();
		bool found = false;
		while (!ended() && !is(1, "xmc")) {
			if (!is(0, "catalog")) {
				fail(6, value());
			}
			catalog();
			ignorable();
			found = true;
		}
		return found ? xmc_fault{0, text_of(0, "")} : xmc_fault{1, text_of(1, file)};
	}

	void catalog() {
		std::string name;
		try {
			++m_at;
			std::string lang;
			for (; type() != 4; ++m_at) {
				if (is(2, "name")) {
					++m_at;
					name = value();
				} else if (is(2, "lang")) {
					++m_at;
					lang = value();
				} else if (type() == 2) {
					fail(5, value());
				}
			}
			++m_at;
			if (weight(lang) == 0) {
				while (!is(1, "catalog")) {
					++m_at;
				}
			} else {
				catalogs[name];
				ignorable();
				while (is(0, "msg")) {
					message(name, lang);
					ignorable();
				}
				if (!is(1, "catalog")) {
					fail(13, name);
				}
			}
			++m_at;
		} catch (xmc_fault &fault) {
			fault.text += in("catalog", name);
			throw;
		}
	}

	void message(std::string const &catalog_name, std::string const &lang) {
		std::string name;
		try {
			xmc_message result;
			result.locale = lang;
			++m_at;
			for (; type() != 4; ++m_at) {
				if (is(2, "name")) {
					++m_at;
					name = value();
				} else if (is(2, "meta")) {
					++m_at;
					result.meta = value();
				} else if (type() == 2) {
					fail(5, value());
				}
			}
			++m_at;
			pieces(result);
			auto &messages = catalogs[catalog_name];
			auto const old = messages.find(name);
			if (old == messages.end() || weight(old->second.locale) < weight(lang)) {
				messages[name] = result;
			}
		} catch (xmc_fault &fault) {
			fault.text += in("message", name);
			throw;
		}
	}

	void pieces(xmc_message &result) {
		std::string buffer;
		bool behind_argument = false;
		auto const flush = [&] {
			if (!buffer.empty()) {
				result.items.emplace_back(0, buffer);
			}
			buffer.clear();
		};
		while (true) {
			if (ended()) {
				fail(14);
			}
			if (type() == 1 || value() == "msg") {
				flush();
				++m_at;
				return;
			}
			if (type() == 6) {
				if (buffer.empty()) {
					buffer += behind_argument ? " " : "";
				} else if (buffer.back() != ' ') {
					buffer += ' ';
				}
				behind_argument = false;
				++m_at;
			} else if (type() == 7) {
				buffer += value();
				behind_argument = false;
				++m_at;
			} else if (is(0, "br")) {
				buffer += '\n';
				++m_at;
				if (type() != 4) {
					fail(5, value());
				}
				++m_at;
				if (!is(1, "br")) {
					fail(9);
				}
				++m_at;
			} else if (is(0, "arg") || is(0, "argument")) {
				flush();
				result.items.push_back(argument());
				behind_argument = true;
			} else if (type() == 0) {
				fail(6, value());
			} else {
				++m_at;
			}
		}
	}

	std::pair<int, std::string> argument() {
		static std::map<std::string, int> const types = {
		    {"value", 0},       {"string", 1}, {"number", 2},       {"int", 3},      {"double", 4},
		    {"time", 5},        {"date", 6},   {"memory", 7},       {"mem", 7},      {"mem_unit", 8},
		    {"memory_unit", 8}, {"metric", 9}, {"metric_unit", 10}, {"duration", 11}};
		int kind = 1;
		std::string data;
		std::string name;
		++m_at;
		for (; type() != 4; ++m_at) {
			if (is(2, "name")) {
				++m_at;
				data = value();
				name = value();
			} else if (is(2, "type")) {
				++m_at;
				std::string word = value();
				for (char &c : word) {
					c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
				}
				kind = types.count(word) != 0 ? types.at(word) : 1;
			} else if (type() == 2) {
				data += '\1' + value() + '\1';
				++m_at;
				data += value();
			}
		}
		while (type() != 1 && value() != "arg" && value() != "argument") {
			if (ended()) {
				fail(11, name);
			}
			++m_at;
		}
		++m_at;
		if (ended()) {
			fail(14);
		}
		return {kind, data};
	}

	std::vector<std::string> m_languages;
	std::vector<token> m_tokens;
	std::size_t m_at = 0;
};

} // namespace reference

#endif
