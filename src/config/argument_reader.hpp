#ifndef QUOR_SRC_CONFIG_ARGUMENT_READER_HPP
#define QUOR_SRC_CONFIG_ARGUMENT_READER_HPP

#include <quor/config/base_config_item.hpp>
#include <quor/config/config_token.hpp>
#include <quor/generic/varg_list.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::config::detail {

/// Reads the arguments of a command line into an item. One token serves all arguments: a
/// token that has no text of its own counts with the text of the one before it, also across
/// arguments.
class argument_reader {
public:
	/// `count` as `main` gets it, `arguments` not null; neither is copied.
	argument_reader(base_config_item &item, int count, char const *const *arguments) noexcept
	    : m_item(item), m_end(count > 0 ? static_cast<unsigned int>(count) : 0U), m_arguments(arguments) {}

	/// Reads from index 1 on up to the count or a null pointer.
	void read();

private:
	/// Null at the count.
	char const *argument(unsigned int index) const noexcept { return index < m_end ? m_arguments[index] : nullptr; }

	void read_argument();
	bool read_key();
	void read_list();
	void read_following();
	bool value_follows() const noexcept;

	void start(unsigned int index, unsigned int position);
	bool next_token();
	bool is_token(config_token::tok_types type, char unit) const noexcept;
	void append_rest();
	void end_element();
	void store();

	base_config_item &m_item;
	unsigned int m_end;
	char const *const *m_arguments;
	unsigned int m_index = 1;
	strings::ustring8 m_text;
	unsigned int m_position = 0;
	config_token m_token;
	strings::ustring8 m_key;
	strings::ustring8 m_value;
	generic::varg_list m_elements;
};

} // namespace QUOR_2_9::config::detail

#endif
