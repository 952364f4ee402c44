# Completion of the command quor for bash.

_quor() {
	local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
	local options='' word path=()
	for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
		case $word in
		--) return ;; # what follows belongs to another program
		-*) ;;
		*) path+=("$word") ;;
		esac
	done
	COMPREPLY=()
	case $previous in
	--html | --file)
		mapfile -t COMPREPLY < <(compgen -f -- "$current")
		return
		;;
	--limit) return ;;
	esac
	case "${path[*]:0:2}" in
	'') options='catalog config --help --version' ;;
	catalog) options='check coverage render --help' ;;
	config) options='explain dump --help' ;;
	'catalog check') options='--limit --json --help' ;;
	'catalog coverage') options='--html --json --help' ;;
	'catalog render') options='--all-languages --help' ;;
	'config explain') options='--file --env --help --' ;;
	'config dump') options='--file --env --help --' ;;
	esac
	if [[ ${#path[@]} -lt 2 || $current == -* ]]; then
		mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
	elif [[ ${path[0]} == catalog ]]; then
		mapfile -t COMPREPLY < <(compgen -f -- "$current")
	fi
}
complete -o filenames -F _quor quor
