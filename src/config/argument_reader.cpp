#include "config/argument_reader.hpp"

#include <iostream>
#include <string>

#include <quor/generic/argument.hpp>

#include "config/token_scanner.hpp"

namespace QUOR_2_9::config::detail {

namespace {

bool begins_key(char const *argument) noexcept {
	return *argument == '-' || *argument == '/';
}

void warn_of(char const *argument) {
	std::string const text = std::string("Warning! unknown key:") + argument + "\nIgnoring key and continuing\n";
	std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
}

} // namespace

void argument_reader::read() {
	for (m_index = 1; argument(m_index) != nullptr; ++m_index) {
		if (begins_key(argument(m_index))) {
			read_argument();
		} else {
			warn_of(argument(m_index));
		}
	}
}

void argument_reader::read_argument() {
	start(m_index, 1);
	m_value.clear();
	m_elements.clear();
	bool const delimited = read_key();
	// By the text alone: where the argument ends with the key, it is that of the key's last
	// token.
	if (m_token.token_text == "$") {
		append_rest();
		store();
	} else if (delimited) {
		read_list();
	} else {
		read_following();
	}
}

/// Whether a delimiter ends the key, rather than the argument.
bool argument_reader::read_key() {
	m_key.clear();
	while (next_token()) {
		switch (m_token.token_type) {
		case config_token::T_EQ:
		case config_token::T_COLON:
		case config_token::T_COLONEQ:
			return true;
		case config_token::T_GTEQ:
		case config_token::T_LTEQ:
		case config_token::T_PLUSEQ:
		case config_token::T_MINUSEQ:
		case config_token::T_TIMESEQ:
		case config_token::T_DIVEQ:
			m_key += m_token.token_text[0];
			return true;
		default:
			if (is_token(config_token::T_NON_ALPHA_NUM, '$')) {
				return true;
			}
			m_key += m_token.token_text;
		}
	}
	return false;
}

void argument_reader::read_list() {
	while (next_token()) {
		if (is_token(config_token::T_NON_ALPHA_NUM, ',')) {
			end_element();
		} else {
			m_value += m_token.token_text;
		}
	}
	store();
}

/// Whether one more argument belongs to the values of the key.
bool argument_reader::value_follows() const noexcept {
	char const *const next = argument(m_index + 1);
	return next != nullptr && *next != '-';
}

void argument_reader::read_following() {
	if (!value_follows() || begins_key(argument(m_index + 1))) {
		m_item.set(m_key, 1);
		return;
	}
	start(++m_index, 0);
	append_rest();
	while (value_follows()) {
		end_element();
		start(++m_index, 0);
		append_rest();
	}
	store();
}

void argument_reader::start(unsigned int index, unsigned int position) {
	m_text = argument(index);
	m_position = position;
}

bool argument_reader::next_token() {
	scanned_token const token = scan_token(m_text, m_position);
	m_token.token_type = token.type;
	if (token.has_text()) {
		m_token.token_text.assign(token.text);
	}
	return token.type != config_token::T_END;
}

bool argument_reader::is_token(config_token::tok_types type, char unit) const noexcept {
	return m_token.token_type == type && m_token.token_text.size() == 1 && m_token.token_text[0] == unit;
}

void argument_reader::append_rest() {
	while (next_token()) {
		m_value += m_token.token_text;
	}
}

void argument_reader::end_element() {
	m_elements.push_back(generic::argument(m_value));
	m_value.clear();
}

void argument_reader::store() {
	if (m_elements.empty()) {
		m_item.set(m_key, m_value, 0);
	} else {
		end_element();
		m_item.set_array(m_key, m_elements, generic::varg_list());
	}
}

} // namespace QUOR_2_9::config::detail
