#!/bin/sh
# A till in the shell: keeps a sale, prints its receipt once, says what to do if it cannot.
#
#   till.sh sell SALES ID [OPTION...] < ITEMS
#   till.sh again SALES [OPTION...]
#
# README.md says what these are.
set -u

cannot_print=2
try_again=3
tab=$(printf '\t')

not_kept() { # why
    echo "The sale is not kept: $1."
    exit $cannot_print
}

escaped() { # text
    printf '%s' "$1" | LC_ALL=C sed 's/&/\&amp;/g; s/</\&lt;/g; s/>/\&gt;/g; s/"/\&quot;/g'
}

amount() { # cents
    printf '%d.%02d' $(($1 / 100)) $(($1 % 100))
}

# The job of a receipt, of lines with quantity, name and price in cents between tabs.
job_of() { # id, lines
    echo '<?xml version="1.0" encoding="UTF-8"?>'
    echo '<printjob>'
    echo '    <method name="printFullOrderReceipt"/>'
    echo "    <receipt serialnumber=\"$1\"/>"
    total=0
    while IFS=$tab read -r number name price; do
        total=$((total + number * price))
        printf '    <receipe number="%s" name="%s" price="%s" totalPrice="%s"/>\n' \
            "$number" "$(escaped "$name")" "$(amount "$price")" "$(amount $((number * price)))"
    done <<END
$2
END
    echo "    <total price=\"$(amount "$total")\"/>"
    echo '</printjob>'
}

# Writes a sale whole or not at all, and never over another one.
keep() { # sales, id, lines
    part=$1/$2.$$.part
    for folder in open printed refused; do
        mkdir -p "$1/$folder" 2>/dev/null
        [ ! -e "$1/$folder/$2.xml" ] || not_kept 'there is a sale of that name'
    done
    {
        job_of "$2" "$3" >"$part" && sync "$part" && ln "$part" "$1/open/$2.xml" && rm "$part"
    } 2>/dev/null || not_kept "$1 cannot be written"
}

# Delivers an open sale and says what came of it; the till's own status.
deliver() { # sales, id, option...
    sales=$1
    id=$2
    shift 2
    path=$sales/open/$id.xml
    status=0
    reason=$(
        exec 2>&1 >/dev/null </dev/null
        korvel-deliver "--id=$id" "$@" -- "$path"
        exit $?
    ) || status=$?
    folder=open
    case $status in
        0)
            folder=printed
            echo "$id: sent to the printer."
            ;;
        1)
            folder=refused
            echo "$id: not printed: the receipt is wrong. Call for help; it is not tried again."
            ;;
        "$cannot_print" | 126 | 127) # the latter two are what shells and the system's loader say
            [ "$status" = $cannot_print ] || reason='korvel-deliver cannot be started'
            status=$cannot_print
            echo "$id: not printed: the till cannot print. Call for help, then try again."
            ;;
        "$try_again")
            echo "$id: not printed yet. Look at the printer, then try again."
            ;;
        4)
            cat <<END
$id: in doubt. It may be on paper, or not:
1. Look at the paper: is the document there, whole?
2. Whole: \`korvel-journal resolve $id printed\`. It is done.
3. Not there, or torn off in the middle: \`korvel-journal resolve $id not-printed\`,
   and throw the piece away.
4. Then print it again as before; it comes out once.
5. Not sure, or a fiscal receipt in pieces: ask who keeps the books before you do either.
END
            ;;
        *)
            status=$try_again
            reason= # how the shell calls the signal
            echo "$id: the delivery was ended. Try again; nothing is printed twice."
            ;;
    esac
    [ "$status" = 0 ] || [ -z "$reason" ] || printf '%s\n' "$reason"
    if [ $folder != open ] && [ -e "$path" ]; then # or another try was quicker
        mv "$path" "$sales/$folder/$id.xml"
    fi
    return "$status"
}

sell() { # sales, id, option...
    LC_ALL=C expr "x$2" : 'x[A-Za-z0-9][A-Za-z0-9-]\{0,99\}$' >/dev/null \
        || not_kept 'that is no name for a sale'
    items=$(iconv -f UTF-8 -t UTF-8 2>/dev/null) || not_kept 'an item is wrong'
    if printf '%s\n' "$items" | LC_ALL=C grep -Evq \
        "^[1-9][0-9]{0,3}${tab}[^$tab]+$tab(0|[1-9][0-9]{0,6})\$"; then
        not_kept 'an item is wrong'
    fi
    keep "$1" "$2" "$items"
    deliver "$@"
}

# Tries all that are open again; the highest of their statuses.
again() { # sales, option...
    folder_of_sales=$1
    shift
    highest=0
    for file in "$folder_of_sales"/open/*.xml; do
        [ -e "$file" ] || continue
        deliver "$folder_of_sales" "$(basename "$file" .xml)" "$@"
        [ "$status" -le $highest ] || highest=$status
    done
    return $highest
}

command=${1:-}
[ $# -eq 0 ] || shift
if [ "$command" = sell ] && [ $# -ge 2 ]; then
    sell "$@"
elif [ "$command" = again ] && [ $# -ge 1 ]; then
    again "$@"
else
    echo 'usage: till sell SALES ID [OPTION...] < ITEMS | till again SALES [OPTION...]' >&2
    exit $cannot_print
fi
