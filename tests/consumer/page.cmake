# Fails unless PAGE shows each of SOURCES as it is.
file(READ "${PAGE}" page)
foreach(source IN LISTS SOURCES)
    file(READ "${source}" text)
    string(FIND "${page}" "```cpp\n${text}```\n" at)
    if(at EQUAL -1)
        message(SEND_ERROR "${PAGE} does not show ${source} as it is")
    endif()
endforeach()
