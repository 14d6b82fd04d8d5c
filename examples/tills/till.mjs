#!/usr/bin/env node
// A till in Node: keeps a sale, prints its receipt once, says what to do if it cannot.
//
//   till.mjs sell SALES ID [OPTION...] < ITEMS
//   till.mjs again SALES [OPTION...]
//
// README.md says what these are.
import { spawnSync } from 'node:child_process';
import fs from 'node:fs';

const cannotPrint = 2;
const tryAgain = 3;
const notStarted = [126, 127]; // what shells and the system's loader say

// What korvel-deliver ends with: the folder that the sale goes to, and the words for the cashier.
const outcomes = new Map([
    [0, ['printed', (id) => `${id}: sent to the printer.`]],
    [1, ['refused', (id) =>
        `${id}: not printed: the receipt is wrong. Call for help; it is not tried again.`]],
    [cannotPrint, ['open', (id) =>
        `${id}: not printed: the till cannot print. Call for help, then try again.`]],
    [tryAgain, ['open', (id) => `${id}: not printed yet. Look at the printer, then try again.`]],
    [4, ['open', (id) => `${id}: in doubt. It may be on paper, or not:
1. Look at the paper: is the document there, whole?
2. Whole: \`korvel-journal resolve ${id} printed\`. It is done.
3. Not there, or torn off in the middle: \`korvel-journal resolve ${id} not-printed\`,
   and throw the piece away.
4. Then print it again as before; it comes out once.
5. Not sure, or a fiscal receipt in pieces: ask who keeps the books before you do either.`]],
]);
const ended = (id) => `${id}: the delivery was ended. Try again; nothing is printed twice.`;

class NotKept extends Error {}

const escapes = { '&': '&amp;', '<': '&lt;', '>': '&gt;', '"': '&quot;' };
const escaped = (text) => text.replace(/[&<>"]/g, (character) => escapes[character]);

const amount = (cents) =>
    `${Math.floor(cents / 100)}.${String(cents % 100).padStart(2, '0')}`;

/** The job of a receipt, of lines with quantity, name and price in cents between tabs. */
function jobOf(id, text) {
    let rows = '';
    let total = 0;
    for (const line of text.split('\n')) {
        const item = /^([1-9][0-9]{0,3})\t([^\t]+)\t(0|[1-9][0-9]{0,6})$/.exec(line);
        if (!item)
            throw new NotKept('an item is wrong');
        const [number, name, price] = [Number(item[1]), item[2], Number(item[3])];
        total += number * price;
        rows += `    <receipe number="${number}" name="${escaped(name)}"`
            + ` price="${amount(price)}" totalPrice="${amount(number * price)}"/>\n`;
    }
    return '<?xml version="1.0" encoding="UTF-8"?>\n<printjob>\n'
        + `    <method name="printFullOrderReceipt"/>\n    <receipt serialnumber="${id}"/>\n`
        + `${rows}    <total price="${amount(total)}"/>\n</printjob>\n`;
}

/** Standard input, which has to be UTF-8. */
function itemsRead() {
    const bytes = fs.readFileSync(0);
    try {
        return new TextDecoder('utf-8', { fatal: true }).decode(bytes).replace(/\n+$/, '');
    } catch {
        throw new NotKept('an item is wrong');
    }
}

/** Writes a sale whole or not at all, and never over another one. */
function keep(sales, id, job) {
    const part = `${sales}/${id}.${process.pid}.part`;
    try {
        for (const folder of ['open', 'printed', 'refused']) {
            fs.mkdirSync(`${sales}/${folder}`, { recursive: true });
            if (fs.existsSync(`${sales}/${folder}/${id}.xml`))
                throw new NotKept('there is a sale of that name');
        }
        const file = fs.openSync(part, 'w');
        fs.writeFileSync(file, job);
        fs.fsyncSync(file);
        fs.closeSync(file);
        fs.linkSync(part, `${sales}/open/${id}.xml`);
        fs.unlinkSync(part);
    } catch (error) {
        throw error instanceof NotKept ? error : new NotKept(`${sales} cannot be written`);
    }
}

/** Delivers an open sale and says what came of it; the till's own status. */
function deliver(sales, id, options) {
    const path = `${sales}/open/${id}.xml`;
    const run = spawnSync('korvel-deliver', [`--id=${id}`, ...options, '--', path],
        { stdio: ['ignore', 'ignore', 'pipe'], encoding: 'utf8', maxBuffer: Infinity });
    const isStarted = !run.error && !notStarted.includes(run.status);
    const status = isStarted ? run.status : cannotPrint;
    const reason = isStarted ? run.stderr : 'korvel-deliver cannot be started\n';
    const [folder, words] = outcomes.get(status) ?? ['open', ended];
    if (folder !== 'open' && fs.existsSync(path)) // or another try was quicker
        fs.renameSync(path, `${sales}/${folder}/${id}.xml`);
    process.stdout.write(`${words(id)}\n${status === 0 ? '' : reason}`);
    return outcomes.has(status) ? status : tryAgain;
}

function sell(sales, id, options) {
    try {
        if (!/^[A-Za-z0-9][A-Za-z0-9-]{0,99}$/.test(id))
            throw new NotKept('that is no name for a sale');
        keep(sales, id, jobOf(id, itemsRead()));
    } catch (reason) {
        if (!(reason instanceof NotKept))
            throw reason;
        process.stdout.write(`The sale is not kept: ${reason.message}.\n`);
        return cannotPrint;
    }
    return deliver(sales, id, options);
}

/** Tries all that are open again; the highest of their statuses. */
function again(sales, options) {
    const names = fs.existsSync(`${sales}/open`) ? fs.readdirSync(`${sales}/open`).sort() : [];
    const ids = names.map((name) => name.slice(0, -'.xml'.length));
    return Math.max(0, ...ids.map((id) => deliver(sales, id, options)));
}

function main([command, sales, ...others]) {
    if (command === 'sell' && others.length >= 1)
        return sell(sales, others[0], others.slice(1));
    if (command === 'again' && sales !== undefined)
        return again(sales, others);
    process.stderr.write(
        'usage: till sell SALES ID [OPTION...] < ITEMS | till again SALES [OPTION...]\n');
    return cannotPrint;
}

process.exitCode = main(process.argv.slice(2));
