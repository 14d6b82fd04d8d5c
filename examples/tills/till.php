#!/usr/bin/env php
<?php
// A till in PHP: keeps a sale, prints its receipt once, says what to do if it cannot.
//
//   till.php sell SALES ID [OPTION...] < ITEMS
//   till.php again SALES [OPTION...]
//
// README.md says what these are.

const CANNOT_PRINT = 2;
const TRY_AGAIN = 3;
const NOT_STARTED = [126, 127]; // what shells and the system's loader say

// What korvel-deliver ends with: the folder that the sale goes to, and the words for the cashier.
const OUTCOMES = [
    0 => ['printed', '{0}: sent to the printer.'],
    1 => ['refused',
        '{0}: not printed: the receipt is wrong. Call for help; it is not tried again.'],
    CANNOT_PRINT => ['open',
        '{0}: not printed: the till cannot print. Call for help, then try again.'],
    TRY_AGAIN => ['open', '{0}: not printed yet. Look at the printer, then try again.'],
    4 => ['open', '{0}: in doubt. It may be on paper, or not:
1. Look at the paper: is the document there, whole?
2. Whole: `korvel-journal resolve {0} printed`. It is done.
3. Not there, or torn off in the middle: `korvel-journal resolve {0} not-printed`,
   and throw the piece away.
4. Then print it again as before; it comes out once.
5. Not sure, or a fiscal receipt in pieces: ask who keeps the books before you do either.'],
];
const ENDED = '{0}: the delivery was ended. Try again; nothing is printed twice.';

class NotKept extends Exception
{
}

/** The job of a receipt, of lines with quantity, name and price in cents between tabs. */
function jobOf(string $id, string $text): string
{
    $rows = '';
    $total = 0;
    foreach (explode("\n", $text) as $line) {
        if (!preg_match('/^([1-9][0-9]{0,3})\t([^\t]+)\t(0|[1-9][0-9]{0,6})$/Du', $line, $item)) {
            throw new NotKept('an item is wrong');
        }
        [, $number, $name, $price] = $item;
        $total += $number * $price;
        $rows .= sprintf(
            '    <receipe number="%d" name="%s" price="%s" totalPrice="%s"/>' . "\n",
            $number,
            htmlspecialchars($name, ENT_COMPAT | ENT_XML1, 'UTF-8'),
            amount($price),
            amount($number * $price)
        );
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<printjob>\n"
        . "    <method name=\"printFullOrderReceipt\"/>\n    <receipt serialnumber=\"$id\"/>\n"
        . $rows . '    <total price="' . amount($total) . "\"/>\n</printjob>\n";
}

function amount(int $cents): string
{
    return sprintf('%d.%02d', intdiv($cents, 100), $cents % 100);
}

/** Writes a sale whole or not at all, and never over another one. */
function keep(string $sales, string $id, string $job): void
{
    foreach (['open', 'printed', 'refused'] as $folder) {
        if (!is_dir("$sales/$folder")) {
            @mkdir("$sales/$folder", 0777, true);
        }
        if (file_exists("$sales/$folder/$id.xml")) {
            throw new NotKept('there is a sale of that name');
        }
    }
    $part = "$sales/$id." . getmypid() . '.part';
    $file = @fopen($part, 'w');
    if (
        !$file || fwrite($file, $job) !== strlen($job) || !fsync($file)
        || !@link($part, "$sales/open/$id.xml")
    ) {
        throw new NotKept("$sales cannot be written");
    }
    unlink($part);
}

/** Runs a program without a shell: its status, or none where it was ended, and its complaint. */
function run(array $command): array
{
    $nothing = ['file', '/dev/null', 'r+'];
    $process = @proc_open($command, [$nothing, $nothing, ['pipe', 'w']], $pipes);
    $reason = $process ? stream_get_contents($pipes[2]) : '';
    while ($process && ($end = proc_get_status($process))['running']) {
        usleep(1000);
    }
    if (!$process || in_array($end['exitcode'], NOT_STARTED, true)) {
        return [CANNOT_PRINT, "korvel-deliver cannot be started\n"];
    }
    return [$end['signaled'] ? null : $end['exitcode'], $reason];
}

/** Delivers an open sale and says what came of it; the till's own status. */
function deliver(string $sales, string $id, array $options): int
{
    $path = "$sales/open/$id.xml";
    [$status, $reason] = run(['korvel-deliver', "--id=$id", ...$options, '--', $path]);
    [$folder, $words] = OUTCOMES[$status] ?? ['open', ENDED];
    if ($folder !== 'open' && file_exists($path)) { // or another try was quicker
        rename($path, "$sales/$folder/$id.xml");
    }
    echo str_replace('{0}', $id, $words), "\n", $status === 0 ? '' : $reason;
    return isset(OUTCOMES[$status]) ? $status : TRY_AGAIN;
}

function sell(string $sales, string $id, array $options): int
{
    try {
        if (!preg_match('/^[A-Za-z0-9][A-Za-z0-9-]{0,99}$/D', $id)) {
            throw new NotKept('that is no name for a sale');
        }
        keep($sales, $id, jobOf($id, rtrim(stream_get_contents(STDIN), "\n")));
    } catch (NotKept $reason) {
        echo 'The sale is not kept: ', $reason->getMessage(), ".\n";
        return CANNOT_PRINT;
    }
    return deliver($sales, $id, $options);
}

/** Tries all that are open again; the highest of their statuses. */
function again(string $sales, array $options): int
{
    $statuses = [0];
    foreach (glob("$sales/open/*.xml") as $path) {
        $statuses[] = deliver($sales, basename($path, '.xml'), $options);
    }
    return max($statuses);
}

function main(array $arguments): int
{
    if (count($arguments) >= 3 && $arguments[0] === 'sell') {
        return sell($arguments[1], $arguments[2], array_slice($arguments, 3));
    }
    if (count($arguments) >= 2 && $arguments[0] === 'again') {
        return again($arguments[1], array_slice($arguments, 2));
    }
    fwrite(
        STDERR,
        "usage: till sell SALES ID [OPTION...] < ITEMS | till again SALES [OPTION...]\n"
    );
    return CANNOT_PRINT;
}

exit(main(array_slice($argv, 1)));
