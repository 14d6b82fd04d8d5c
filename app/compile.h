// The whole run of the renderer.
#pragma once

/**
 * Renders one print job: reads the user's settings, installs the translation they name, and feeds
 * the job through the printer back end into the output file.
 *
 * @param argc 3, or 4 with a last argument that is ignored; otherwise the usage line is printed
 * @param argv program, job file and output file. The toolkit may take arguments out of it.
 *
 * What is wrong with the settings, the method or the output file is said on standard output; a job
 * that cannot be read, or that is no well-formed XML, ends where it breaks without a word. Nothing
 * is written to standard error.
 */
void compile(int argc, char *argv[]);
