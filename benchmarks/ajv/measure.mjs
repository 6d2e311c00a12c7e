// node measure.mjs SCHEMA DOCUMENT: the median time of one validation by a compiled schema, in milliseconds.
import Ajv from "ajv/dist/2020.js";
import { readFileSync } from "node:fs";

const [schemaPath, documentPath] = process.argv.slice(2);
const schema = JSON.parse(readFileSync(schemaPath, "utf8"));
const document = JSON.parse(readFileSync(documentPath, "utf8"));
const validate = new Ajv({ strict: false, discriminator: true, allErrors: true, logger: false }).compile(schema);
const times = [];
for (let i = 0; i < 600; ++i) {
    const start = process.hrtime.bigint();
    validate(document);
    times.push(Number(process.hrtime.bigint() - start) / 1e6);
}
const settled = times.slice(100).sort((a, b) => a - b);
console.log(settled[settled.length >> 1].toFixed(4));
