# Runs an example in two folders, time zones and languages. It must write one whole document, twice the same.
function(run place zone language)
    file(REMOVE_RECURSE ${FOLDER}/${place})
    file(MAKE_DIRECTORY ${FOLDER}/${place})
    set(ENV{TZ} ${zone})
    set(ENV{LC_ALL} ${language})
    if(TEXT)
        file(COPY_FILE ${TEXT} ${FOLDER}/${place}/text)
        set(text text)
    endif()
    execute_process(COMMAND ${EMULATOR} ${PROGRAM} ${text} out.rtf
        WORKING_DIRECTORY ${FOLDER}/${place} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

run(here UTC C)
# A language of Western Europe: on Windows it decides which characters the file has.
run(there Asia/Kathmandu de_DE.UTF-8)
execute_process(COMMAND ${EMULATOR} ${CHECK} here/out.rtf there/out.rtf
    WORKING_DIRECTORY ${FOLDER} COMMAND_ERROR_IS_FATAL ANY)
