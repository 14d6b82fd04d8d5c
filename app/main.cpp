// korvel-print: renders one print job. The exit status is 0 in every case.
#include "app/compile.h"
#include "app/process.h"

int main(int argc, char *argv[])
{
    korvel::app::prepareProcess();
    compile(argc, argv);
    return 0;
}
