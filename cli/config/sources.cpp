#include "config/sources.hpp"

#include <iostream>
#include <stdexcept>

namespace quor_cli {

using quor::strings::ustring8;

namespace {

// Sends what is written to the standard output stream somewhere else.
class redirected_output {
public:
	explicit redirected_output(std::ostream &to) : m_old(std::cout.rdbuf(to.rdbuf())) {}
	~redirected_output() { std::cout.rdbuf(m_old); }
	redirected_output(redirected_output const &) = delete;
	redirected_output &operator=(redirected_output const &) = delete;

private:
	std::streambuf *m_old;
};

} // namespace

std::string loaded_file(quor::config::config_manager const &manager) {
	auto const item = manager.get_config_item("standard file");
	auto const *const file = dynamic_cast<quor::config::file_item const *>(item.get());
	return file != nullptr ? file->get_filename() : ustring8();
}

config_source const standard_sources[3] = {
    {"command line", "command line"},
    {"standard file", "file"},
    {"enviroment", "environment"},
};

config_sources::config_sources(config_request const &request, terminal &to) {
	m_texts = request.arguments;
	m_texts.insert(m_texts.end(), request.environment.begin(), request.environment.end());
	m_arguments.push_back("program");
	for (std::size_t i = 0; i != m_texts.size(); ++i) {
		(i < request.arguments.size() ? m_arguments : m_environment).push_back(m_texts[i].c_str());
	}
	int const count = static_cast<int>(m_arguments.size());
	m_arguments.push_back(nullptr);
	m_environment.push_back(nullptr);
	if (!request.file.empty() && !quor::system::io::is_file(ustring8(request.file))) {
		throw std::runtime_error("\"" + request.file + "\" can't be read");
	}
	m_manager.init(
	    quor::config::std_config_dispatch(count, m_arguments.data(), m_environment.data(), ustring8(request.file), ""));
	redirected_output const redirected(to.err);
	try {
		m_manager.load();
	} catch (std::runtime_error const &) {
		// The command line may have named another file.
		throw std::runtime_error("\"" + loaded_file(m_manager) +
		                         "\" has a key of one byte; keys in files have two or more");
	}
}

} // namespace quor_cli
