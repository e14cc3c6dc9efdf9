# Included into the project where a package is built: no program tells of the folder of its source.
add_compile_options("-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.")
