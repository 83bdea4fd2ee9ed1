// == Types of the declarations ==
// What the other declarations speak of. An object whose class a name does not tell has the members of `HTML_Object`; any
// other member of it may be used, too, and its type is not known.

/** An object, or the name of one. */
type ObjectOrName = HTML_Object | string;

/** An object whose class is known when the script runs. */
type AnyObject = HTML_Object & { [member: string]: any };

/** The class of the object that a name finds, as far as the name tells. */
type ObjectNamed<Name extends string> =
  Name extends `${string}container${string}` ? AnyObject :
  Name extends `${string}tagName='A'${string}` ? HTML_Anchor :
  Name extends `${string}tagName='BUTTON'${string}` ? HTML_Button :
  Name extends `${string}tagName='FORM'${string}` ? HTML_Form :
  Name extends `${string}tagName='IMG'${string}` ? HTML_Image :
  Name extends `${string}tagName='OPTION'${string}` ? HTML_Option :
  Name extends `${string}tagName='SELECT'${string}` ? HTML_Select :
  Name extends `${string}tagName='TEXTAREA'${string}` ? HTML_TextArea :
  Name extends `${string}tagName='INPUT'${string}type='checkbox'${string}` ? HTML_CheckBox :
  Name extends `${string}tagName='INPUT'${string}type='radio'${string}` ? HTML_RadioButton :
  Name extends `${string}tagName='INPUT'${string}type='text'${string}` ? HTML_Text :
  Name extends 'DOCUMENT' ? HTML_Document :
  AnyObject;

/** What a page wrote to the console, or an error that it did not catch. */
interface ConsoleMessage {
  level: 'debug' | 'info' | 'warn' | 'error';
  text: string;
  url: string;
  line: number;
  /** Whether it is an error that the page did not catch. */
  uncaught: boolean;
}

interface Download {
  /** Where the file lies. */
  path: string;
  /** The name that the page wants, without what would lead out of a folder. */
  name: string;
  url: string;
  /** In bytes. */
  size: number;
}

interface CookieOptions {
  domain?: string;
  path?: string;
  secure?: boolean;
  httpOnly?: boolean;
  sameSite?: string;
  /** Seconds since 1970. A cookie without it ends with the browser. */
  expires?: number;
}

interface Cookie {
  name: string;
  value: string;
  domain: string;
  path: string;
  secure: boolean;
  httpOnly: boolean;
  sameSite: string;
  /** Seconds since 1970. */
  expires?: number;
}
