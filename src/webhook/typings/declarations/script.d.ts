// == Script and files ==

/**
 * What the script was started with.
 * @example
 * test.log(script.name + " lies at " + script.path);
 * var server = script.arguments.server || "http://localhost:8000";
 * openUrl(server + "/shop.html");
 */
declare const script: {
  /** The texts of the options `--arg name=value`, by their names. */
  readonly arguments: { readonly [name: string]: string };
  /** The path of the script. */
  readonly path: string;
  /** The name of the script without folder and ending. */
  readonly name: string;
};

/**
 * The environment variables as texts by their names. They cannot be changed.
 * @example
 * test.verify(environment.PATH !== "");
 * test.compare(environment.NO_SUCH_VARIABLE, undefined);
 */
declare const environment: { readonly [name: string]: string };

/**
 * The path of a file beside the script.
 * @param file The name of the file.
 * @example
 * test.verify(/people\.csv$/.test(scriptPath("people.csv")));
 */
declare function scriptPath(file: string): string;

/**
 * Runs another script file in the same scope. Its functions and `var`s can be used from then on, its `let`s and `const`s
 * cannot.
 * @param path The file; a relative path starts at the file that calls.
 * @example
 * source("lib/greeting.js"); // function greeting(name) { return "Hello, " + name; }
 * test.compare(greeting("Ada"), "Hello, Ada");
 */
declare function source(path: string): void;

/**
 * The rows of a table of test data: of a `.csv` or `.tsv` file an object a line, with a text for each column that the
 * first line names; of a `.json` file the array of objects that it holds.
 * @param file The file beside the script, in UTF-8.
 * @example
 * var people = readTable("people.csv");
 * test.compare(people[0], { name: "Ada", town: "London" });
 */
declare function readTable(file: string): any[];
