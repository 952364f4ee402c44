#include <quor/i18n/load_result.hpp>

#include <ostream>

namespace QUOR_2_9::i18n {

using strings::ustring8;

namespace {

using loader_type = _private::xmc_file_loader;

load_result_types::error_type kind_of(loader_type::error_type type) {
	switch (type) {
	case loader_type::load_none:
		return load_result_types::no_error;
	case loader_type::load_no_catalog:
		return load_result_types::no_catalog;
	case loader_type::load_file_not_found:
		return load_result_types::file_not_found;
	default:
		return load_result_types::load_failed;
	}
}

char const *first_line_of(loader_type::error_type type) {
	switch (type) {
	case loader_type::load_none:
		return "message_catalogs::result_type - No Error\n ";
	case loader_type::load_no_catalog:
		return "message_catalogs::result_type - No catalog was loaded\n ";
	case loader_type::load_no_default_locale:
		return "message_catalogs::result_type - Default locale lookup not supported yet\n ";
	case loader_type::load_file_not_found:
		return "message_catalogs::result_type - File was not found on disk\n ";
	case loader_type::load_xml_error:
		return "message_catalogs::result_type - XML parse error, XML file not well formed\n ";
	case loader_type::load_invalid_attribute:
	case loader_type::load_invalid_element:
	case loader_type::load_not_xmc:
	case loader_type::load_bad_version:
	case loader_type::load_no_br_end:
	case loader_type::load_no_msg_end:
	case loader_type::load_no_arg_end:
	case loader_type::load_no_include_end:
	case loader_type::load_no_catalog_end:
		return "message_catalogs::result_type - XMC file is not valid\n ";
	default:
		return "message_catalogs::result_type - Unexpected error happened during loading\n ";
	}
}

} // namespace

load_result_types::result_type::result_type(error_type type, ustring8 const &data)
    : m_type(type), m_message(format_message(type, data)) {}

load_result_types::result_type::result_type(loader_type::load_error const &error)
    : m_type(kind_of(error.type())), m_message(format_message(error)) {}

ustring8 load_result_types::result_type::format_message(error_type type, ustring8 const &data) {
	switch (type) {
	case no_error:
		return "message_catalogs::result_type - No Error";
	case no_catalog:
		return "message_catalogs::result_type - No catalog was loaded in file: \"" + data + "\"";
	case file_not_found:
		return "message_catalogs::result_type - File \"" + data + "\" was not found on disk";
	case directory_not_found:
		return "message_catalogs::result_type - Directory \"" + data + "\" was not found on disk";
	case entity_not_found:
		return "message_catalogs::result_type - Entity (file or directory) \"" + data + "\" was not found on disk";
	default:
		return "unknown, or unhandle case happened!  str data=" + data;
	}
}

ustring8 load_result_types::result_type::format_message(loader_type::load_error const &error) {
	return first_line_of(error.type()) + error.message();
}

std::ostream &operator<<(std::ostream &stream, load_result_types::result_type const &result) {
	return stream << result.message();
}

} // namespace QUOR_2_9::i18n
