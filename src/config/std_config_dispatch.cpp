#include <quor/config/std_config_dispatch.hpp>

#include <utility>

#include <quor/config/commandline_item.hpp>
#include <quor/config/enviroment_item.hpp>
#include <quor/config/file_item.hpp>

namespace QUOR_2_9::config {

std_config_dispatch::std_config_dispatch(int argc, char const *const *argv, char const *const *envp,
                                         strings::ustring8 const &config_file, strings::ustring8 const &second_name)
    : m_argv(argv), m_envp(envp), m_argc(argc), m_config_file(config_file), m_second_name(second_name) {}

std_config_dispatch::std_config_dispatch(std_config_dispatch const &) = default;

std_config_dispatch &std_config_dispatch::operator=(std_config_dispatch const &other) {
	strings::ustring8 config_file = other.m_config_file;
	strings::ustring8 second_name = other.m_second_name;
	m_argv = other.m_argv;
	m_envp = other.m_envp;
	m_argc = other.m_argc;
	m_config_file = std::move(config_file);
	m_second_name = std::move(second_name);
	return *this;
}

std_config_dispatch::~std_config_dispatch() = default;

void std_config_dispatch::setup(item_list &items) const {
	commandline_item const command_line(static_cast<unsigned int>(m_argc), m_argv);
	enviroment_item const environment(m_envp);
	file_item const file(m_config_file);
	item_list made;
	made.push_back(command_line.clone());
	made.push_back(file.clone());
	made.push_back(environment.clone());
	items.splice(items.end(), made);
}

std_config_dispatch *std_config_dispatch::clone() const {
	return new std_config_dispatch(*this);
}

} // namespace QUOR_2_9::config
