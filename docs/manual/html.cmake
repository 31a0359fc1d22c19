# Makes the HTML of the manual: `cmark` translates the pages of `source` into `output`. For each window that a page
# describes, which an anchor with the name of its class marks, there is a small page of that name that leads there:
# desktops open files and drop an anchor behind a file's name.
file(REMOVE_RECURSE ${output})
file(MAKE_DIRECTORY ${output})
file(COPY ${source}/images ${source}/style.css DESTINATION ${output})
file(READ ${source}/page.html.in frame)

# write_page(NAME): with `title`, `head` and `body` in the frame that all pages share.
function(write_page name)
    string(CONFIGURE "${frame}" page @ONLY)
    file(WRITE ${output}/${name}.html "${page}")
endfunction()

file(GLOB pages ${source}/*.md)
foreach(file ${pages})
    get_filename_component(name ${file} NAME_WE)
    execute_process(COMMAND ${cmark} --unsafe -e table --to html ${file}
                    OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE "(href=\"[a-z-]+)\\.md" "\\1.html" body "${body}")
    string(REGEX MATCH "<h1>[^<]*" title "${body}")
    string(REPLACE "<h1>" "" title "${title}")
    set(head "")
    write_page(${name})
    string(REGEX MATCHALL "<a id=\"[a-z]*[A-Z][A-Za-z]*\"" anchors "${body}")
    foreach(anchor ${anchors})
        string(REGEX REPLACE "<a id=\"([A-Za-z]+)\"" "\\1" window "${anchor}")
        set(place "${name}.html#${window}")
        set(head "<meta http-equiv=\"refresh\" content=\"0; url=${place}\">")
        set(body "<p><a href=\"${place}\">${title}</a></p>")
        write_page(${window})
    endforeach()
endforeach()
